// Scaler: renders a PixelBuffer at another size and format by exact area
// averaging in integer arithmetic. A destination pixel is the average of the
// source pixels under it, each weighted by how much of it lies there, so
// enlarging replicates pixels in exact proportions and shrinking is a box
// filter. Parts of the scaled image are rendered on request.
#pragma once

#include "rfb/ImageGetter.h"
#include "rfb/PixelBuffer.h"
#include "xnutil/ScaleRoutines.h"

#include <vector>

namespace xnutil {

class Scaler : public rfb::ImageGetter {
public:
  /// The source's size becomes the source size; with `adoptFormat` its format
  /// and colour map become the destination's. `source` is not owned.
  void setSource(rfb::PixelBuffer* source, bool adoptFormat);
  void setDestSize(rfb::Size size);
  void setDestFormat(const rfb::PixelFormat& format, const rfb::ColourMap* colourMap);

  /// Renders `rect` of the scaled image. Raises plat::Exception "Scaler error:
  /// ..." when no routine scales between the two formats, or without a source.
  void getImage(void* dest, const rfb::Rect& rect, int stride = 0) override;

  const rfb::PixelFormat& getDestFormat() const { return dstFormat_; }
  const rfb::ColourMap* getDestColourMap() const { return dstColourMap_; }

private:
  struct Coords {
    rfb::Point srcSz;
    rfb::Point dstSz;
  };

  void chooseFn();

  Coords coords_;
  std::vector<RowSum> rowSums_;
  rfb::PixelBuffer* source_ = nullptr;
  rfb::PixelFormat dstFormat_;
  const rfb::ColourMap* dstColourMap_ = nullptr;
  ScaleRoutine scaleFn_ = nullptr;
};

/// The source span [first, last) that destination span [from, to) covers, when
/// `source` pixels become `dest` ones: rounded outwards.
void mapToSource(std::int32_t from, std::int32_t to, std::int32_t source, std::int32_t dest,
                 std::int32_t& first, std::int32_t& last);

} // namespace xnutil
