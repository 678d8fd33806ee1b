#include "xnutil/PngFile.h"

#include "plat/Assertion.h"
#include "rfb/Composite.h"
#include "xnutil/ImageExceptions.h"

#include <cstring>

namespace xnutil {

// libpng reports errors through a function that must not return. Its frames
// are C, so no C++ exception may pass through them: the error function jumps
// back to the point set before each call into libpng, and the exception is
// raised from there. No object with a destructor lives between the two.

PngFile::PngFile(const void* data, std::size_t length, bool premultiply, const char* name)
    : data_(static_cast<const std::uint8_t*>(data)), length_(length),
      name_(name ? name : "<unknown>"), premultiply_(premultiply) {
  png_structp pp = png_create_read_struct(PNG_LIBPNG_VER_STRING, this, fail, nullptr);
  XN_ASSERT(pp);
  reader_.pngStruct_ = pp;
  png_infop ip = png_create_info_struct(pp);
  XN_ASSERT(ip);
  reader_.pngInfo_ = ip;
  if (setjmp(jumpBuffer_))
    raise();
  png_set_read_fn(pp, this, readData);
  png_read_info(pp, ip);
  png_set_bgr(pp);
  png_set_expand(pp);
  png_set_strip_16(pp);
  png_set_gray_to_rgb(pp);
  png_set_filler(pp, 0, PNG_FILLER_AFTER);
  // Interlaced data comes in passes; each pass fills its pixels into the rows.
  passes_ = png_set_interlace_handling(pp);
  png_read_update_info(pp, ip);
  width_ = static_cast<std::int32_t>(png_get_image_width(pp, ip));
  height_ = static_cast<std::int32_t>(png_get_image_height(pp, ip));
  const int colourType = png_get_color_type(pp, ip);
  if (colourType == PNG_COLOR_TYPE_RGB_ALPHA)
    pf_ = rfb::pfArgb8888();
  else if (colourType == PNG_COLOR_TYPE_RGB)
    pf_ = rfb::pfRgb888();
  else
    throw PngException("PNG color type %d not supported: %s", colourType, name_.get());
}

void PngFile::readData(png_structp png, png_bytep out, png_size_t count) {
  auto* self = static_cast<PngFile*>(png_get_io_ptr(png));
  if (count > self->length_ - self->position_)
    png_error(png, "Bad PNG data");
  std::memcpy(out, self->data_ + self->position_, count);
  self->position_ += count;
}

void PngFile::fail(png_structp png, png_const_charp message) {
  auto* self = static_cast<PngFile*>(png_get_error_ptr(png));
  self->errorText_ = plat::String(message);
  std::longjmp(self->jumpBuffer_, 1);
}

void PngFile::raise() const {
  throw PngException("%s: %s", errorText_.get(), name_.get());
}

void PngFile::load(rfb::WritablePixelBuffer& buffer, rfb::Point origin) {
  XN_ASSERT(!loaded_);
  loaded_ = true;
  rfb::WritablePixelBuffer* pb = &buffer;
  const rfb::PixelFormat& pf = pf_;
  XN_ASSERT(pb->getPf().equal(pf));
  const rfb::Rect rect = rfb::Rect::at(origin, getSize());
  int stride = 0;
  std::uint8_t* pixels = buffer.getPixelsRW(rect, &stride);
  const std::ptrdiff_t rowBytes = std::ptrdiff_t{stride} * pf.bytesPerPixel();
  if (setjmp(jumpBuffer_))
    raise();
  for (int pass = 0; pass < passes_; ++pass)
    for (std::int32_t y = 0; y < height_; ++y)
      png_read_row(reader_.pngStruct_, pixels + y * rowBytes, nullptr);
  if (premultiply_ && pf.hasAlpha())
    rfb::composite(buffer, {}, buffer, rect, rfb::opPremultiply);
}

} // namespace xnutil
