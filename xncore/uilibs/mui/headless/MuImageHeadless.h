// mui::MuImageHeadless: the image of the headless binding. It fetches named
// images as the program does, so that their sizes at each density are those
// a display would show, and records what it shows.
#pragma once

#include "mui/MuImage.h"

#include <memory>

namespace ui {
class NamedImage;
}

namespace mui {

class MuImageHeadless : public MuImage {
public:
  static MuImage* make(MuContainer* parent, const char* name, const char* image, const Size* size);

  Size getImageSize() override;
  /// The pixels shown, or null.
  rfb::PixelBuffer* shown() const noexcept { return shown_; }

protected:
  bool showNamedImage(const char* name, Size size) override;
  void showBuffer(rfb::PixelBuffer* buffer) override;

private:
  MuImageHeadless(MuContainer* parent, const char* name);

  std::shared_ptr<ui::NamedImage> named_;
  rfb::PixelBuffer* shown_ = nullptr;
};

} // namespace mui
