// mui::DialogWindowQt: the top-level widget of a MuDialogQt. It hands what
// the window system does to the window (closing, keys, activation, resizing,
// theme changes, presses on the background) to its dialog, and forgets the
// dialog when it goes.
#pragma once

#include <QWidget>

namespace mui {

class MuDialogQt;

class DialogWindowQt : public QWidget {
public:
  DialogWindowQt(MuDialogQt* dialog, QWidget* parent, Qt::WindowFlags flags);

  void forgetDialog() noexcept { dialog_ = nullptr; }

protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  /// A dialog with the Border style draws a plain thin border around itself.
  void paintEvent(QPaintEvent* event) override;
  /// Presses that no control took come here from the widget they landed on.
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

private:
  MuDialogQt* dialog_;
};

} // namespace mui
