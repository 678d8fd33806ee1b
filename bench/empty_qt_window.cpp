// The yardstick of the start-up benchmark: the least a Qt Widgets program
// does to show a window. It opens one empty top-level window of the main
// dialog's size and runs Qt's loop until the window is closed.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setWindowTitle(QStringLiteral("Empty window"));
  window.resize(572, 650);
  window.show();
  return application.exec();
}
