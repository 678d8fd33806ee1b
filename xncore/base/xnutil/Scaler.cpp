#include "xnutil/Scaler.h"

#include "plat/Assertion.h"
#include "plat/Exception.h"

namespace xnutil {

void mapToSource(std::int32_t from, std::int32_t to, std::int32_t source, std::int32_t dest,
                 std::int32_t& first, std::int32_t& last) {
  const std::int64_t low = std::int64_t{source} * from, high = std::int64_t{source} * to;
  first = static_cast<std::int32_t>(low / dest);
  last = static_cast<std::int32_t>((high + dest - 1) / dest);
}

void Scaler::setSource(rfb::PixelBuffer* source, bool adoptFormat) {
  source_ = source;
  if (source_) {
    coords_.srcSz = {source_->width(), source_->height()};
    if (adoptFormat) {
      dstFormat_ = source_->getPf();
      dstColourMap_ = source_->getColourMap();
    }
  }
  chooseFn();
}

void Scaler::setDestSize(rfb::Size size) {
  coords_.dstSz = {size.width, size.height};
  chooseFn();
}

void Scaler::setDestFormat(const rfb::PixelFormat& format, const rfb::ColourMap* colourMap) {
  dstFormat_ = format;
  dstColourMap_ = colourMap;
  chooseFn();
}

void Scaler::chooseFn() {
  scaleFn_ = nullptr;
  if (!source_)
    return;
  if (source_->getPf() == dstFormat_ && coords_.srcSz == coords_.dstSz) {
    scaleFn_ = copyScaleRoutine;
    return;
  }
  // The sums grow with the width; they shrink only when far too large.
  const std::size_t needed = coords_.dstSz.x > 0 ? std::size_t(coords_.dstSz.x) : 0;
  if (needed > rowSums_.size())
    rowSums_.assign(needed, RowSum{});
  else if (needed < rowSums_.size() / 2 && rowSums_.size() >= 128)
    std::vector<RowSum>(needed, RowSum{}).swap(rowSums_);
  scaleFn_ = chooseScaleRoutine(source_->getPf(), dstFormat_);
}

void Scaler::getImage(void* dest, const rfb::Rect& rect, int stride) {
  if (rect.isEmpty())
    return;
  if (!scaleFn_) {
    if (!source_)
      throw plat::Exception("Scaler error: no source");
    char from[rfb::PixelFormat::printSize], to[rfb::PixelFormat::printSize];
    source_->getPf().print(from);
    dstFormat_.print(to);
    throw plat::Exception(plat::formatted, "Scaler error: %s to %s", from, to);
  }
  XN_ASSERT(coords_.srcSz.x > 0 && coords_.srcSz.y > 0 && coords_.dstSz.x > 0 &&
            coords_.dstSz.y > 0);
  const rfb::Rect bounds(0, 0, coords_.dstSz.x, coords_.dstSz.y);
  XN_ASSERT(bounds.encloses(rect));

  std::int32_t left, right, top, bottom;
  mapToSource(rect.tl.x, rect.br.x, coords_.srcSz.x, coords_.dstSz.x, left, right);
  mapToSource(rect.tl.y, rect.br.y, coords_.srcSz.y, coords_.dstSz.y, top, bottom);
  int sourceStride = 0;
  const rfb::Rect area = rfb::Rect(left, top, right, bottom).translate(source_->getRect().tl);
  const std::uint8_t* pixels = source_->getPixelsR(area, &sourceStride);

  ScaleJob job{};
  job.width = rect.width();
  job.height = rect.height();
  job.dest = static_cast<std::uint8_t*>(dest);
  job.destStride = stride ? stride : rect.width();
  job.destPf = &dstFormat_;
  job.destMap = dstColourMap_;
  job.source = pixels;
  job.sourceStride = sourceStride;
  job.sourceWidth = right - left;
  job.sourcePf = &source_->getPf();
  job.sourceMap = source_->getColourMap();
  job.sourceX = std::int64_t{left} * coords_.dstSz.x;
  job.sourceY = std::int64_t{top} * coords_.dstSz.y;
  job.destX = std::int64_t{coords_.srcSz.x} * rect.tl.x;
  job.destY = std::int64_t{coords_.srcSz.y} * rect.tl.y;
  job.srcSz = coords_.srcSz;
  job.dstSz = coords_.dstSz;
  job.rowSums = rowSums_.data();
  scaleFn_(job);
}

} // namespace xnutil
