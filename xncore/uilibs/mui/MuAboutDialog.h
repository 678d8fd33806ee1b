// mui::MuAboutDialog: the toolkit's one canned dialog, the About box: the
// application's picture beside a text that names the product and its
// version and gives the legal lines, over a button bar with OK, which Return
// and Escape press too. The application installs the texts of its product;
// until it does, the box names the application alone.
#pragma once

#include "mui/Geometry.h"
#include "mui/MuButtonBar.h"
#include "mui/MuObserver.h"
#include "plat/LinkCbOpenUrl.h"
#include "plat/String.h"

#include <memory>

namespace os {
class Window;
}

namespace mui {

class MuDialog;
class MuImage;
class MuLayout;
class MuText;

class MuAboutDialog : public MuObserver {
public:
  /// The product's two texts: a line with its name and version, and a
  /// marked-up body.
  using TextSource = plat::String (*)();

  /// Installs the sources of the product line and the body, for the boxes
  /// made afterwards; null sources leave the application's name alone.
  static void setTexts(TextSource productLine, TextSource body);

  /// A hidden box over `parentDialog` (or `parentWindow`); `imageName` null
  /// shows the application's picture.
  MuAboutDialog(MuDialog* parentDialog, os::Window* parentWindow, const char* imageName = nullptr);
  ~MuAboutDialog() override;

  MuDialog* getDialog() const noexcept { return dialog_.get(); }
  void show();

  /// A click on a button of the bar hides the box; a change of theme loads
  /// the picture again at the same size. Nothing else concerns it.
  void handleEvent(MuElement* source, int event) override;

private:
  /// Removes the box from its dialog's observers when it goes.
  class Registration {
  public:
    Registration(MuDialog* dialog, MuObserver* observer);
    ~Registration();
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;

  private:
    MuDialog* dialog_;
    MuObserver* observer_;
  };

  Size imageSize() const;

  std::unique_ptr<MuDialog> dialog_;
  MuLayout* column_;
  MuLayout* row_;
  plat::String imageName_;
  MuImage* image_;
  MuText* text_;
  plat::LinkCbOpenUrl links_;
  std::unique_ptr<MuButtonBar> buttonBar_;
  Registration registration_;
};

} // namespace mui
