#include "mui/qt/MuEditQt.h"

#include "mui/EditInput.h"
#include "mui/EditText.h"
#include "mui/Keys.h"
#include "mui/MuDialog.h"
#include "mui/qt/EditWidgetQt.h"
#include "mui/qt/EventGlueQt.h"
#include "mui/qt/LabelWrapperQt.h"
#include "mui/qt/MuiQt.h"

#include <QClipboard>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QTextBlock>
#include <QTextLayout>
#include <limits>
#include <memory>

namespace mui {

namespace {

EditText editText(const QString& text, bool secure) {
  return EditText(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<int>(text.size()),
                  secure);
}

// The code points of `text`; a lone surrogate half stays as it is.
template <class Each>
bool forEachCodePoint(const QString& text, Each each) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    char32_t c = text[i].unicode();
    if (isHighSurrogate(c) && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      c = QChar::surrogateToUcs4(text[i], text[i + 1]);
      ++i;
    }
    if (!each(c))
      return false;
  }
  return true;
}

} // namespace

MuEditQt::MuEditQt(MuContainer* parent, const char* name, const char* label, int type, int options)
    : MuEdit(parent, name, label, type, options) {
  auto wrapper = std::make_unique<LabelWrapperQt>(this, this, MuCommonQt::Traits());
  LabelWrapperQt* peer = wrapper.get();
  setCommon(std::move(wrapper));
  if (type == Multiline) {
    auto* box = new TextEditQt(this, peer->widget());
    // Tab moves on through the dialog, as in the platform's dialogs.
    box->setTabChangesFocus(true);
    // Lines wrap at the box's width and the form makes room for all of them,
    // so the box has no scroll bars; the caret scrolls it if need be.
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    if (options & NoBorder)
      box->setFrameShape(QFrame::NoFrame);
    QObject::connect(box, &QPlainTextEdit::textChanged, box, [this] { changedInWidget(); });
    control_ = box;
  } else {
    auto* line = new LineEditQt(this, peer->widget());
    if (type == Password)
      line->setEchoMode(QLineEdit::Password);
    line->setFrame(!(options & NoBorder));
    // Qt cuts a line at 32767 characters unless told otherwise; a line may
    // hold a long list.
    line->setMaxLength(std::numeric_limits<int>::max());
    QObject::connect(line, &QLineEdit::textChanged, line, [this] { changedInWidget(); });
    control_ = line;
  }
  // Dropped text would pass by the checks of typing and pasting.
  control_->setAcceptDrops(false);
  peer->setControl(control_);
}

MuEditQt::~MuEditQt() {
  // The last text of a password goes, wiped, while the control is still there.
  if (editType() == Password && control_) {
    QString last = widgetText();
    show(QString());
    wipeReleased(last);
    wipeReleased(accepted_);
  }
}

MuEdit* MuEditQt::make(MuContainer* parent, const char* name, const char* label, int type,
                       int options) {
  return new MuEditQt(parent, name, label, type, options);
}

LabelWrapperQt* MuEditQt::peer() {
  return static_cast<LabelWrapperQt*>(common());
}

QWidget* MuEditQt::control() const {
  return control_;
}

QLineEdit* MuEditQt::lineEdit() const {
  return qobject_cast<QLineEdit*>(control_.data());
}

QPlainTextEdit* MuEditQt::textEdit() const {
  return qobject_cast<QPlainTextEdit*>(control_.data());
}

QString MuEditQt::widgetText() const {
  if (QLineEdit* line = lineEdit())
    return line->text();
  return textEdit()->toPlainText();
}

EditText MuEditQt::current() const {
  EditText text = editText(widgetText(), editType() == Password);
  if (QLineEdit* line = lineEdit()) {
    if (line->hasSelectedText())
      text.select(line->selectionStart(), line->selectionEnd());
    else
      text.select(line->cursorPosition(), line->cursorPosition());
  } else {
    const QTextCursor cursor = textEdit()->textCursor();
    text.select(cursor.anchor(), cursor.position());
  }
  return text;
}

void MuEditQt::wipeReleased(QString& text) const {
  if (editType() == Password && !text.isEmpty() && text.isDetached())
    text.fill(QChar(0));
  text = QString();
}

void MuEditQt::show(const QString& text) {
  QString before = widgetText();
  showing_ = true;
  if (QLineEdit* line = lineEdit())
    line->setText(text);
  else
    textEdit()->setPlainText(text);
  showing_ = false;
  wipeReleased(before);
  wipeReleased(accepted_);
  accepted_ = text;
}

void MuEditQt::setText(const char* text) {
  show(QString::fromUtf8(text ? text : ""));
  if (QPlainTextEdit* box = textEdit())
    box->moveCursor(QTextCursor::End);
}

plat::String MuEditQt::getText() {
  return plat::String(current().toUtf8().data());
}

void MuEditQt::setCue(const char* text) {
  const QString cue = QString::fromUtf8(text ? text : "");
  if (QLineEdit* line = lineEdit())
    line->setPlaceholderText(cue);
  else
    textEdit()->setPlaceholderText(cue);
}

void MuEditQt::select(int start, int length) {
  const EditText text = current();
  int first = text.selectionEnd();
  int last = first;
  if (start >= 0) {
    first = text.unitAtByte(start);
    last = length < 0 ? text.length() : text.unitAtByte(start + length);
  }
  if (QLineEdit* line = lineEdit()) {
    line->setSelection(first, last - first);
    return;
  }
  QTextCursor cursor = textEdit()->textCursor();
  cursor.setPosition(first);
  cursor.setPosition(last, QTextCursor::KeepAnchor);
  textEdit()->setTextCursor(cursor);
}

int MuEditQt::getSelection(int* length) {
  const EditText text = current();
  const int start = text.bytesBefore(text.selectionStart());
  *length = text.bytesBefore(text.selectionEnd()) - start;
  return start;
}

void MuEditQt::setFilter(Filter* filter) {
  MuEdit::setFilter(filter);
  if (QPlainTextEdit* box = textEdit()) {
    box->document()->clearUndoRedoStacks();
    accepted_ = widgetText();
    return;
  }
  // Setting the text again is how a line edit forgets what it could undo.
  QLineEdit* line = lineEdit();
  const int cursor = line->cursorPosition();
  const int start = line->selectionStart();
  const int selected = static_cast<int>(line->selectedText().size());
  show(line->text());
  if (start >= 0)
    line->setSelection(start, selected);
  else
    line->setCursorPosition(cursor);
}

int MuEditQt::minControlWidth() {
  return control_->minimumSizeHint().width();
}

int MuEditQt::lineHeight() {
  return QFontMetrics(MuiQt::instance().font(effectiveStyle())).lineSpacing();
}

int MuEditQt::nativeFrameHeight() {
  // A box of many lines shows its last line whole only with a pixel to spare.
  if (QPlainTextEdit* box = textEdit())
    return 2 * box->frameWidth() + 2 * static_cast<int>(box->document()->documentMargin()) + 1;
  return std::max(0, lineEdit()->sizeHint().height() - lineHeight());
}

// Lines as the box wraps them: at word boundaries, or anywhere in a word
// longer than the line, inside the frame and the document's margins.
int MuEditQt::lineCount(int width) {
  QPlainTextEdit* box = textEdit();
  if (!box)
    return 1;
  const QFont font = MuiQt::instance().font(effectiveStyle());
  const qreal room = std::max(1, width - nativeFrameHeight());
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  int lines = 0;
  for (const QString& paragraph : widgetText().split(QLatin1Char('\n'))) {
    QTextLayout layout(paragraph, font);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(room);
      ++lines;
    }
    layout.endLayout();
  }
  return lines;
}

MuEditQt::KeyVerdict MuEditQt::verdictOnKey(const QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers();
  EditInput input;
  input.shift = modifiers & Qt::ShiftModifier;
  input.control = modifiers & Qt::ControlModifier;
  input.alt = modifiers & Qt::AltModifier;
  EditText clipboard(editType() == Password);
  if (event->key() == Qt::Key_Backspace) {
    input.kind = EditInput::Backspace;
  } else if (event->key() == Qt::Key_Delete) {
    input.kind = EditInput::Delete;
  } else if (event->matches(QKeySequence::Paste)) {
    input.kind = EditInput::Paste;
    clipboard = editText(QGuiApplication::clipboard()->text(), editType() == Password);
    input.clipboard = &clipboard;
  } else if (event->matches(QKeySequence::Cut)) {
    input.kind = EditInput::Cut;
  } else if (!event->text().isEmpty()) {
    // Control and a letter is a command (undo, select all...), not typing;
    // what it changes gets the filter's second look.
    if ((modifiers & (Qt::ControlModifier | Qt::MetaModifier)) && event->text().at(0) < u' ')
      return NotAnEdit;
    return admitsTyped(event->text()) ? Approved : Refused;
  } else {
    return NotAnEdit;
  }
  EditText text = current();
  bool admitted = false;
  callFromQt([&] { admitted = admitsInput(text, input); });
  return admitted ? Approved : Refused;
}

bool MuEditQt::admitsTyped(const QString& typed) {
  EditText text = current();
  bool admitted = false;
  callFromQt([&] {
    admitted = forEachCodePoint(typed, [&](char32_t c) {
      EditInput input;
      input.character = c;
      return admitsInput(text, input);
    });
  });
  return admitted;
}

void MuEditQt::change(bool approved, const std::function<void()>& act) {
  QString before = editType() == Password ? widgetText() : QString();
  approved_ = approved;
  act();
  approved_ = false;
  wipeReleased(before);
}

void MuEditQt::changedInWidget() {
  if (showing_)
    return;
  callFromQt([this] {
    QString now = widgetText();
    if (filter() && !approved_) {
      const plat::MBuf<char> utf8 = editText(now, editType() == Password).toUtf8();
      if (!filter()->accept(this, utf8.data(), 0)) {
        const QString previous = accepted_;
        show(previous);
        return;
      }
    }
    wipeReleased(accepted_);
    accepted_ = now;
    textChangedByUser();
  });
}

void MuEditQt::pressDefaultButton() {
  callFromQt([this] {
    if (MuDialog* dialog = rootDialog())
      dialog->activateByKey(KeyReturn);
  });
}

} // namespace mui
