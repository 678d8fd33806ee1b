// NamedImage: a named image decoded once for one size, with premultiplied
// alpha, shared through a process-wide cache. Its pixels stay in memory for
// the whole run; the toolkit's binding hands them to the platform without a
// copy. A name that can't be loaded gives an empty image and a log line, never
// a failure: a missing icon must not keep a dialog from opening.
#pragma once

#include "rfb/ManagedPixelBuffer.h"

#include <memory>

namespace ui {

class NamedImage : public rfb::ManagedPixelBuffer {
public:
  /// A size of 0 x 0 takes the image's own size at the display scale. With
  /// `logFailures`, a missing or broken image is logged at level 100; images
  /// of a name that disagree about its size are logged at level 0 always.
  NamedImage(const char* name, rfb::Size size, bool logFailures);

  /// Whether the image was asked for at 0 x 0.
  bool isAutoSize() const { return autoSize_; }
  /// The display scale at which it was made.
  int scale() const { return scale_; }

private:
  bool autoSize_;
  int scale_;
};

/// The image of `name` at `size` from the cache, made on the first request.
/// An empty image is kept too, so a failing name is tried once for each size.
/// A size of 0 x 0 is one size for each display scale.
std::shared_ptr<NamedImage> getNamedImage(const char* name, rfb::Size size);
/// As above; with `useDarkVariant`, on a dark background "<name>_darkbg" is
/// preferred when it exists.
std::shared_ptr<NamedImage> getNamedImage(const char* name, rfb::Size size, bool useDarkVariant);

} // namespace ui
