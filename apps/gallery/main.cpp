// The gallery of the toolkit's controls on Qt: one form with every control in
// each of its states, for a person to look at. Closing the window ends it.
#include "gallery/GalleryForm.h"

#include "loc/Localize.h"
#include "mui/qt/MessageQueueQt.h"
#include "mui/qt/MuiQt.h"
#include "os/AppLoop.h"

#include <QApplication>

namespace {

struct QuitOnClose : mui::MuObserver {
  void dialogClosed(mui::MuDialog*) override { os::AppLoop::quit(0); }
};

} // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  // The texts in the desktop's languages.
  loc::Localize::instance().init({});
  mui::MessageQueueQt queue;
  os::setMessageQueue(&queue);
  os::AppLoop loop;
  mui::MuiQt root;
  mui::installQtBinding(root);
  gallery::GalleryForm form;
  QuitOnClose quit;
  form.dialog()->addObserver(&quit);
  form.dialog()->setVisible(true);
  const int code = loop.run();
  os::setMessageQueue(nullptr);
  return code;
}
