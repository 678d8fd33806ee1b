// PNG data as the named images hold it, damaged in every way. Invariants: the
// decoder gives a picture in one of its two formats or raises PngException,
// whose message names the image; libpng's own error path comes back through
// the exception and nothing else. Images above four million pixels are not
// decoded, to keep each run short.
#include "FuzzCheck.h"

#include "rfb/ManagedPixelBuffer.h"
#include "xnutil/ImageExceptions.h"
#include "xnutil/PngFile.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

using xnfuzz::check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    xnutil::PngFile file(data, size, true, "fuzz.png");
    const rfb::Size dimensions = file.getSize();
    check(dimensions.width > 0 && dimensions.height > 0);
    check(file.getPf() == rfb::pfArgb8888() || file.getPf() == rfb::pfRgb888());
    if (std::int64_t{dimensions.width} * dimensions.height > (std::int64_t{1} << 22))
      return 0;
    rfb::ManagedPixelBuffer buffer(file.getPf(), rfb::Rect::at({}, dimensions));
    file.load(buffer, {});
    // Premultiplied colours never exceed their alpha.
    if (file.getPf().hasAlpha()) {
      const std::uint32_t pixel = buffer.getPixel({dimensions.width - 1, dimensions.height - 1});
      const std::uint32_t alpha = pixel >> 24;
      check((pixel >> 16 & 255) <= alpha && (pixel >> 8 & 255) <= alpha && (pixel & 255) <= alpha);
    }
  } catch (const xnutil::PngException& e) {
    check(std::strcmp(e.type(), "PngException") == 0);
    const std::string message = e.what();
    check(message.size() >= 10 && message.compare(message.size() - 10, 10, ": fuzz.png") == 0);
  }
  return 0;
}
