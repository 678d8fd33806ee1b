#include "mui/qt/MuStaticQt.h"

#include "mui/Ellipsis.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/MuiQt.h"

#include <QEvent>
#include <QLabel>
#include <QTextBrowser>
#include <QTextDocument>
#include <cmath>

namespace mui {

namespace {

Qt::Alignment horizontalAlignment(const MuStatic* element) {
  switch (element->alignment()) {
  case 0:
    return Qt::AlignHCenter;
  case 1:
    return Qt::AlignRight;
  default:
    return Qt::AlignLeft;
  }
}

// A label that keeps its whole text and, on one line, shows the words that
// fit its present width followed by an ellipsis.
class StaticLabelQt : public QLabel {
public:
  explicit StaticLabelQt(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

  void setWholeText(const QString& text, bool singleLine) {
    whole_ = text;
    singleLine_ = singleLine;
    setWordWrap(!singleLine);
    refresh();
  }

protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    refresh();
  }
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
      refresh();
  }

private:
  void refresh() {
    QString shown = whole_;
    if (singleLine_) {
      const QFontMetrics metrics(font());
      shown = QString::fromStdString(
          elideAtWordEnd(whole_.toStdString(), width(), [&metrics](std::string_view text) {
            return metrics.horizontalAdvance(
                QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
          }));
    }
    if (text() != shown)
      setText(shown);
  }

  QString whole_;
  bool singleLine_ = false;
};

QTextBrowser* makeBrowser(QWidget* parent, Qt::Alignment alignment) {
  auto* browser = new QTextBrowser(parent);
  browser->setFrameShape(QFrame::NoFrame);
  browser->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  browser->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  browser->setOpenLinks(false);
  browser->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  browser->setFocusPolicy(Qt::ClickFocus);
  // The text stands on the background of whatever holds it, at the edge.
  browser->viewport()->setAutoFillBackground(false);
  browser->document()->setDocumentMargin(0);
  QTextOption option = browser->document()->defaultTextOption();
  option.setAlignment(alignment);
  browser->document()->setDefaultTextOption(option);
  return browser;
}

// The size of `text` as a text browser lays it out at `width` (no wrapping below 0).
QSizeF documentSize(const QFont& font, const QString& text, qreal width) {
  QTextDocument document;
  document.setDefaultFont(font);
  document.setDocumentMargin(0);
  document.setPlainText(text.isEmpty() ? QStringLiteral(" ") : text);
  document.setTextWidth(width);
  return {document.idealWidth(), document.size().height()};
}

} // namespace

MuStaticQt::MuStaticQt(MuContainer* parent, const char* name, const char* text, int type)
    : MuStatic(parent, name, text, type) {
  QWidget* in = MuCommonQt::parentWidgetFor(parent);
  const Qt::Alignment alignment = horizontalAlignment(this);
  QWidget* widget;
  if (type == Selectable) {
    widget = makeBrowser(in, alignment);
  } else {
    auto* label = new StaticLabelQt(in);
    label->setAlignment(alignment | Qt::AlignTop);
    widget = label;
  }
  setCommon(std::make_unique<MuCommonQt>(this, widget));
  textChanged();
}

MuStatic* MuStaticQt::make(MuContainer* parent, const char* name, const char* text, int type) {
  return new MuStaticQt(parent, name, text, type);
}

void MuStaticQt::textChanged() {
  MuCommonQt* peer = MuCommonQt::of(this);
  const QString text = QString::fromUtf8(label() ? label() : "");
  peer->setText(text);
  peer->setSingleLine(isSingleLine());
  if (auto* browser = qobject_cast<QTextBrowser*>(peer->widget())) {
    browser->setLineWrapMode(isSingleLine() ? QTextEdit::NoWrap : QTextEdit::WidgetWidth);
    browser->setPlainText(text);
  } else {
    static_cast<StaticLabelQt*>(peer->widget())->setWholeText(text, isSingleLine());
  }
}

int MuStaticQt::minWidth(int height) {
  if (staticType() != Selectable)
    return MuStatic::minWidth(height);
  const QFont font = MuiQt::instance().font(effectiveStyle());
  return static_cast<int>(std::ceil(documentSize(font, MuCommonQt::of(this)->text(), -1).width()));
}

int MuStaticQt::minHeight(int width) {
  if (staticType() != Selectable || width < 1)
    return MuStatic::minHeight(width);
  const QFont font = MuiQt::instance().font(effectiveStyle());
  const qreal wrapAt = isSingleLine() ? -1 : width;
  return static_cast<int>(
      std::ceil(documentSize(font, MuCommonQt::of(this)->text(), wrapAt).height()));
}

} // namespace mui
