// The resampling routines behind Scaler: one loop of exact area averaging in
// integer arithmetic, instantiated for each way of reading and writing pixels.
// Internal to the scaler; chooseScaleRoutine picks one for a pair of formats.
#pragma once

#include "rfb/ColourMap.h"
#include "rfb/PixelFormat.h"
#include "rfb/Rect.h"

#include <cstdint>

namespace xnutil {

/// One destination column's sums of red, green, blue and alpha.
struct RowSum {
  std::uint32_t c[4];
};

/// What a routine renders. Positions are in units: a source pixel is
/// dstSz.x units wide and a destination pixel srcSz.x, and likewise for rows.
struct ScaleJob {
  std::int32_t width;  ///< of the destination rectangle
  std::int32_t height; ///< of the destination rectangle
  std::uint8_t* dest;  ///< its top-left pixel
  std::int32_t destStride;
  const rfb::PixelFormat* destPf;
  const rfb::ColourMap* destMap;
  const std::uint8_t* source; ///< the top-left source pixel that the rectangle touches
  std::int32_t sourceStride;
  std::int32_t sourceWidth; ///< pixels of each source row that the rectangle touches
  const rfb::PixelFormat* sourcePf;
  const rfb::ColourMap* sourceMap;
  std::int64_t sourceX; ///< units where `source` starts
  std::int64_t sourceY;
  std::int64_t destX; ///< units where `dest` starts
  std::int64_t destY;
  rfb::Point srcSz;
  rfb::Point dstSz;
  RowSum* rowSums; ///< `width` of them, all zero, and left so
};

using ScaleRoutine = void (*)(const ScaleJob& job);

/// The routine for scaling from `source` to `dest` at different sizes, or
/// null when none fits (alpha in a format that isn't the destination's, or a
/// same-format alpha routine of a size that has none).
ScaleRoutine chooseScaleRoutine(const rfb::PixelFormat& source, const rfb::PixelFormat& dest);

/// Copies rows unchanged, for equal sizes and formats.
void copyScaleRoutine(const ScaleJob& job);

} // namespace xnutil
