#include "oxnpermissionscreator/NativeUi.h"

#include "oxnpermissionscreator/CommandLine.h"

#include "mui/qt/MessageQueueQt.h"
#include "mui/qt/MuiQt.h"
#include "mui/qt/PixelImageQt.h"
#include "os/AppInfo.h"
#include "os/AppLoop.h"

#include <QApplication>
#include <QIcon>
#include <optional>
#include <string>

namespace app {

namespace {

// On Linux the program's toolkit is the Qt binding.
class NativeUiQt : public NativeUi {
public:
  NativeUiQt() : programPath_(processArguments()[0]), application_(argumentCount_, arguments_) {
    QGuiApplication::setApplicationName(QString::fromUtf8(os::getApp(false)));
    // The menu entry of the same name gives desktops the icon and the name.
    QGuiApplication::setDesktopFileName(QString::fromUtf8(os::getApp(false)));
    os::setMessageQueue(&queue_);
  }

  ~NativeUiQt() override {
    root_.reset();
    os::setMessageQueue(nullptr);
  }

  void installToolkit() override {
    root_.emplace();
    mui::installQtBinding(*root_);
    // The icon's small drawings: the picture's own size would be decoded for nothing.
    QIcon icon;
    for (int side : {16, 32, 48})
      icon.addPixmap(mui::namedPixmap(os::getApp(false), {side, side}));
    QApplication::setWindowIcon(icon);
  }

private:
  std::string programPath_;
  // Qt is given the program's path alone, so that it takes none of the
  // program's own parameters for options of its own.
  int argumentCount_ = 1;
  char* arguments_[2] = {programPath_.data(), nullptr};
  QApplication application_;
  mui::MessageQueueQt queue_;
  std::optional<mui::MuiQt> root_;
};

} // namespace

std::unique_ptr<NativeUi> makeNativeUi() {
  mui::prepareQtApplication();
  return std::make_unique<NativeUiQt>();
}

} // namespace app
