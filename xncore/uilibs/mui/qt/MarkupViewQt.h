// mui::MarkupViewQt: the widget of a marked-up text on Qt. It keeps the text
// laid out at its present width as placed runs and paints them, each in the
// font and colour of its style, on the background of whatever holds it. A
// click on a link follows it; the pointer is a hand over a link. A text with
// links takes the focus from the Tab key: the focus goes from link to link,
// Return or Space follows the focused one, and Tab on the last link leaves.
#pragma once

#include "mui/MarkupRuns.h"

#include <QColor>
#include <QWidget>
#include <string>

namespace mui {

class MuText;

class MarkupViewQt : public QWidget {
public:
  MarkupViewQt(MuText* element, QWidget* parent);

  /// Takes a copy; the layout is made again at the next paint.
  void setMarkup(const char* markup);
  /// The colour of text whose style names none.
  void setTextColour(const QColor& colour);
  /// The runs at the present width, laid out when stale.
  const MarkupRuns& laidOut();
  /// The run of the link that has the keyboard's focus, or -1.
  int focusedLink() const noexcept { return focused_; }

protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool focusNextPrevChild(bool next) override;

private:
  /// The next run with a link after (`step` 1) or before (-1) `from`, or -1.
  int linkAfter(int from, int step);
  int linkAt(QPoint point);
  void focusLink(int run);
  void follow(int run);

  MuText* element_;
  std::string markup_;
  MarkupRuns runs_;
  bool valid_ = false;
  int laidOutWidth_ = 0;
  int focused_ = -1;
  QColor textColour_;
};

} // namespace mui
