// PngFile: decodes one PNG image held in memory with libpng. The header is
// read when the object is made, the pixels by load. Every image comes out as
// four bytes a pixel, blue, green, red and alpha or filler in memory: in
// pfArgb8888 when it has alpha (from an alpha channel or a transparent colour),
// else in pfRgb888. Palettes, grey and 16-bit channels are expanded or reduced
// to that.
#pragma once

#include "plat/String.h"
#include "rfb/ImageLoader.h"

#include <png.h>

#include <csetjmp>
#include <cstddef>
#include <cstdint>

namespace xnutil {

class PngFile : public rfb::ImageLoader {
public:
  /// The bytes are not copied and must outlive the object. `name`, or
  /// "<unknown>" when null, names the image in messages. With `premultiply`,
  /// colours with alpha are multiplied by it after loading. Raises
  /// PngException for a header libpng refuses.
  PngFile(const void* data, std::size_t length, bool premultiply, const char* name);
  PngFile(const PngFile&) = delete;
  PngFile& operator=(const PngFile&) = delete;
  ~PngFile() override = default;

  rfb::Size getSize() const override { return {width_, height_}; }
  const rfb::PixelFormat& getPf() const override { return pf_; }
  /// Decodes the pixels into `buffer`, which must have getPf(), at `origin`.
  /// Only once: the decoder reads the data front to back. Raises PngException
  /// for damaged or truncated pixel data.
  void load(rfb::WritablePixelBuffer& buffer, rfb::Point origin) override;

private:
  static void readData(png_structp png, png_bytep out, png_size_t count);
  [[noreturn]] static void fail(png_structp png, png_const_charp message);
  [[noreturn]] void raise() const;

  /// libpng's read and info structures, released even when the constructor fails.
  struct Reader {
    png_structp pngStruct_ = nullptr;
    png_infop pngInfo_ = nullptr;
    Reader() = default;
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    ~Reader() { png_destroy_read_struct(&pngStruct_, &pngInfo_, nullptr); }
  };

  const std::uint8_t* data_;
  std::size_t length_;
  std::size_t position_ = 0;
  rfb::PixelFormat pf_;
  std::int32_t width_ = 0;
  std::int32_t height_ = 0;
  int passes_ = 1;
  bool loaded_ = false;
  std::jmp_buf jumpBuffer_;
  plat::String errorText_;
  plat::String name_;
  bool premultiply_;
  Reader reader_;
};

} // namespace xnutil
