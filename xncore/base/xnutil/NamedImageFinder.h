// NamedImageFinder: the step of choosing a named image that looks at one
// built-in image at a time. NamedImageLoader drives it through findNamedImage,
// which settles the size an image shows at and which resource gives it.
#pragma once

#include "rfb/Rect.h"

namespace xnutil {

class NamedImageFinder {
public:
  virtual ~NamedImageFinder() = default;
  /// Takes the built-in image "<name>.png" when there is one that isn't empty;
  /// otherwise false, and the image held before stays.
  virtual bool load(const char* name) = 0;
  /// The size of the image held.
  virtual rfb::Size getSize() const = 0;
  virtual bool hasImage() const = 0;
};

/// Chooses the image of `name` for `size` at display scale `scale`. A size of
/// 0 x 0 asks for the image's own size at that scale and receives it. Images
/// drawn for exactly the size ("<name><w>x<h>") come first, then the
/// single-density image if it is wide enough, then the double-density one
/// ("<name>_2x"), then whatever was found. Raises NamedImageNotFound, or
/// NamedImageBadSize when the images of the name disagree about its size.
void findNamedImage(NamedImageFinder& finder, const char* name, rfb::Size& size, int scale);

} // namespace xnutil
