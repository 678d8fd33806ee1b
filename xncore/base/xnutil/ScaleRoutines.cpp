#include "xnutil/ScaleRoutines.h"

#include "plat/Assertion.h"
#include "rfb/PixelCodec.h"

#include <algorithm>
#include <cstring>
#include <type_traits>
#include <utility>

namespace xnutil {

namespace {

struct Channels {
  std::uint32_t c[4];
};

/// Calls f(0) ... f(n - 1) written out, so that arrays indexed by channel stay
/// in registers: as loops the compiler leaves them rolled, and the channels
/// then pass through memory.
template <int n, class F>
inline void forChannels(F f) {
  [&]<int... c>(std::integer_sequence<int, c...>) {
    (f(std::integral_constant<int, c>()), ...);
  }
  (std::make_integer_sequence<int, n>());
}

// How a family of routines reads a source pixel into channels and writes
// channels back. A policy is made once for each job, so that what it needs of
// the formats sits in registers; each names its pixel sizes and how many
// channels it averages.

/// A standard format to itself: shifts and masks are constants, and channels
/// are averaged at their own width, with no rescaling.
template <int Bytes, int RS, int RM, int GS, int GM, int BS, int BM>
struct ExactFormat {
  static constexpr int sourceBytes = Bytes;
  static constexpr int destBytes = Bytes;
  static constexpr int channels = 3;
  explicit ExactFormat(const ScaleJob&) {}
  Channels load(const std::uint8_t* p) const {
    const std::uint32_t v = rfb::loadPixel<Bytes>(p);
    return {{v >> RS & RM, v >> GS & GM, v >> BS & BM, 0}};
  }
  void store(std::uint8_t* p, const Channels& c) const {
    rfb::storePixel<Bytes>(p, c.c[0] << RS | c.c[1] << GS | c.c[2] << BS);
  }
};

/// Any true-colour format to itself, with the masks of the format.
template <int Bytes, bool Alpha>
struct SameFormat {
  static constexpr int sourceBytes = Bytes;
  static constexpr int destBytes = Bytes;
  static constexpr int channels = Alpha ? 4 : 3;
  explicit SameFormat(const ScaleJob& job)
      : shift{job.sourcePf->redShift, job.sourcePf->greenShift, job.sourcePf->blueShift,
              job.sourcePf->alphaShift},
        max{job.sourcePf->redMax, job.sourcePf->greenMax, job.sourcePf->blueMax,
            job.sourcePf->alphaMax} {}
  Channels load(const std::uint8_t* p) const {
    const std::uint32_t v = rfb::loadPixel<Bytes>(p);
    return {{v >> shift[0] & max[0], v >> shift[1] & max[1], v >> shift[2] & max[2],
             Alpha ? v >> shift[3] & max[3] : 0}};
  }
  void store(std::uint8_t* p, const Channels& c) const {
    std::uint32_t v = c.c[0] << shift[0] | c.c[1] << shift[1] | c.c[2] << shift[2];
    if constexpr (Alpha)
      v |= c.c[3] << shift[3];
    rfb::storePixel<Bytes>(p, v);
  }
  std::uint32_t shift[4];
  std::uint32_t max[4];
};

/// Through colours of 0..255 with the full unpacking and packing, byte order
/// and colour maps included; a source without alpha counts as opaque.
template <int SourceBytes, int DestBytes>
struct Unpacked {
  static constexpr int sourceBytes = SourceBytes;
  static constexpr int destBytes = DestBytes;
  static constexpr int channels = 3;
  explicit Unpacked(const ScaleJob& job) : job_(job) {}
  Channels load(const std::uint8_t* p) const {
    const rfb::Colour c =
        rfb::unpackPixel(*job_.sourcePf, job_.sourceMap, rfb::loadPixel<SourceBytes>(p));
    return {{static_cast<std::uint32_t>(c.r), static_cast<std::uint32_t>(c.g),
             static_cast<std::uint32_t>(c.b), 255}};
  }
  void store(std::uint8_t* p, const Channels& c) const {
    const rfb::Colour colour{static_cast<std::int32_t>(c.c[0]), static_cast<std::int32_t>(c.c[1]),
                             static_cast<std::int32_t>(c.c[2]), 255};
    rfb::storePixel<DestBytes>(p, rfb::packPixel(*job_.destPf, job_.destMap, colour));
  }
  const ScaleJob& job_;
};

/// The reciprocal of a span in 23-bit fixed point, so that averaging needs a
/// multiplication instead of a division per pixel.
struct Average {
  std::uint64_t half;
  std::uint64_t reciprocal;
  explicit Average(std::int32_t span)
      : half(static_cast<std::uint64_t>(span) / 2),
        reciprocal((std::uint64_t{1} << 23) / static_cast<std::uint64_t>(span)) {}
  std::uint32_t operator()(std::uint64_t sum) const {
    return static_cast<std::uint32_t>((sum + half) * reciprocal >> 23);
  }
};

/// Adds one source row, weighted by its vertical overlap `weight`, to the
/// columns' sums. Each column averages the source pixels under it by their
/// horizontal overlap: a part of the pixel where it starts, the pixels that
/// lie wholly inside it, and a part of the pixel where it ends.
template <class Policy>
void addRow(const Policy& policy, const ScaleJob& job, const std::uint8_t* row,
            std::uint32_t weight, const Average& average) {
  constexpr int n = Policy::channels;
  constexpr int bytes = Policy::sourceBytes;
  const std::int64_t pixelUnits = job.dstSz.x;
  std::int64_t u = job.destX;
  const std::int64_t index = (u - job.sourceX) / pixelUnits;
  std::int64_t pixelEnd = job.sourceX + (index + 1) * pixelUnits;
  const std::uint8_t* p = row + index * bytes;
  const std::uint8_t* const end = row + std::int64_t{job.sourceWidth} * bytes;
  Channels pixel = policy.load(p);
  // Past the row's last pixel nothing is read: such a pixel weighs nothing.
  auto moveTo = [&](const std::uint8_t* to, std::int64_t toEnd) {
    p = to;
    pixelEnd = toEnd;
    if (p < end)
      pixel = policy.load(p);
  };
  // When enlarging, a column that lies wholly inside the pixel that held the
  // column before it has the same values.
  const std::uint8_t* wholeIn = nullptr;
  std::uint32_t value[n] = {};
  RowSum* target = job.rowSums;
  for (std::int32_t column = 0; column < job.width; ++column, ++target) {
    const std::int64_t columnEnd = u + job.srcSz.x;
    const bool inside = columnEnd <= pixelEnd;
    if (!inside || p != wholeIn) {
      std::uint64_t sum[n];
      const auto first = static_cast<std::uint64_t>(std::min(pixelEnd, columnEnd) - u);
      forChannels<n>([&](auto c) { sum[c] = std::uint64_t{pixel.c[c]} * first; });
      wholeIn = inside ? p : nullptr;
      if (!inside) {
        // Whole pixels follow, then a part of the one in which the column ends.
        const std::int64_t span = columnEnd - pixelEnd;
        const std::int64_t count = span < pixelUnits ? 0 : span / pixelUnits;
        const auto rest = static_cast<std::uint64_t>(span - count * pixelUnits);
        std::uint32_t whole[n] = {};
        for (std::int64_t i = 1; i <= count; ++i) {
          const Channels in = policy.load(p + i * bytes);
          forChannels<n>([&](auto c) { whole[c] += in.c[c]; });
        }
        moveTo(p + (count + 1) * bytes, pixelEnd + (count + 1) * pixelUnits);
        forChannels<n>([&](auto c) {
          sum[c] += std::uint64_t{whole[c]} * static_cast<std::uint64_t>(pixelUnits) +
                    std::uint64_t{pixel.c[c]} * rest;
        });
      }
      forChannels<n>([&](auto c) { value[c] = average(sum[c]); });
    }
    if (pixelEnd == columnEnd)
      moveTo(p + bytes, pixelEnd + pixelUnits);
    u = columnEnd;
    forChannels<n>([&](auto c) { target->c[c] += value[c] * weight; });
  }
}

template <class Policy>
void resample(const ScaleJob& job) {
  constexpr int n = Policy::channels;
  const Policy policy(job);
  const Average averageX(job.srcSz.x), averageY(job.srcSz.y);
  const std::int64_t sourceRowUnits = job.dstSz.y;
  const std::size_t rowBytes = std::size_t(job.width) * Policy::destBytes;
  // When enlarging, rows that lie wholly inside the same source row come out
  // the same, so all but the first are copies.
  std::int64_t previousWholeRow = -1;
  std::int64_t u = job.destY;
  for (std::int32_t y = 0; y < job.height; ++y) {
    std::uint8_t* d = job.dest + std::int64_t{y} * job.destStride * Policy::destBytes;
    const std::int64_t rowEnd = u + job.srcSz.y;
    const std::int64_t firstIndex = (u - job.sourceY) / sourceRowUnits;
    const bool whole = job.sourceY + (firstIndex + 1) * sourceRowUnits >= rowEnd;
    if (whole && firstIndex == previousWholeRow) {
      std::memcpy(d, d - std::int64_t{job.destStride} * Policy::destBytes, rowBytes);
      u = rowEnd;
      continue;
    }
    previousWholeRow = whole ? firstIndex : -1;
    while (u < rowEnd) {
      const std::int64_t index = (u - job.sourceY) / sourceRowUnits;
      const std::int64_t end = std::min(job.sourceY + (index + 1) * sourceRowUnits, rowEnd);
      addRow(policy, job, job.source + index * job.sourceStride * std::int64_t{Policy::sourceBytes},
             static_cast<std::uint32_t>(end - u), averageX);
      u = end;
    }
    for (std::int32_t x = 0; x < job.width; ++x, d += Policy::destBytes) {
      RowSum& sum = job.rowSums[x];
      Channels out{};
      forChannels<n>([&](auto c) {
        out.c[c] = averageY(sum.c[c]);
        sum.c[c] = 0;
      });
      policy.store(d, out);
    }
  }
}

template <int S>
constexpr ScaleRoutine unpackedFrom[4] = {resample<Unpacked<S, 1>>, resample<Unpacked<S, 2>>,
                                          resample<Unpacked<S, 3>>, resample<Unpacked<S, 4>>};
constexpr const ScaleRoutine* unpacked[4] = {unpackedFrom<1>, unpackedFrom<2>, unpackedFrom<3>,
                                             unpackedFrom<4>};
constexpr ScaleRoutine sameFormat[4] = {
    resample<SameFormat<1, false>>, resample<SameFormat<2, false>>, resample<SameFormat<3, false>>,
    resample<SameFormat<4, false>>};
constexpr ScaleRoutine toAlpha[4] = {unpackedFrom<1>[3], unpackedFrom<2>[3], unpackedFrom<3>[3],
                                     unpackedFrom<4>[3]};

} // namespace

ScaleRoutine chooseScaleRoutine(const rfb::PixelFormat& source, const rfb::PixelFormat& dest) {
  const int srcIdx = source.bpp / 8 - 1;
  const int dstIdx = dest.bpp / 8 - 1;
  XN_ASSERT(srcIdx >= 0 && srcIdx <= 3 && dstIdx >= 0 && dstIdx <= 3);
  const bool bigEndian = (source.bpp > 8 && source.bigEndian) || (dest.bpp > 8 && dest.bigEndian);
  if (dest.trueColour && !bigEndian) {
    if (source == dest) {
      if (dest == rfb::pfRgb222())
        return resample<ExactFormat<1, 4, 3, 2, 3, 0, 3>>;
      if (dest == rfb::pfRgb565())
        return resample<ExactFormat<2, 11, 31, 5, 63, 0, 31>>;
      if (dest == rfb::pfRgb888())
        return resample<ExactFormat<4, 16, 255, 8, 255, 0, 255>>;
      if (!dest.hasAlpha())
        return sameFormat[dstIdx];
      return dstIdx == 1   ? resample<SameFormat<2, true>>
             : dstIdx == 3 ? resample<SameFormat<4, true>>
                           : nullptr;
    }
    // A source without alpha becomes opaque in a 32-bit destination with alpha.
    if (dest.hasAlpha() && dest.bpp == 32 && !source.hasAlpha())
      return toAlpha[srcIdx];
  }
  if (source.hasAlpha() || dest.hasAlpha())
    return nullptr;
  // Colour-map sources are looked up pixel by pixel in the same routines.
  return unpacked[srcIdx][dstIdx];
}

void copyScaleRoutine(const ScaleJob& job) {
  const std::size_t bytes = job.destPf->bytesPerPixel();
  for (std::int32_t y = 0; y < job.height; ++y)
    std::memcpy(job.dest + std::size_t(y) * job.destStride * bytes,
                job.source + std::size_t(y) * job.sourceStride * bytes, job.width * bytes);
}

} // namespace xnutil
