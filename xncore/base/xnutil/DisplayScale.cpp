#include "xnutil/DisplayScale.h"

#include "plat/Configuration.h"

namespace xnutil {

namespace {

int devicePercent = 100;
constexpr int singleDensityScale = 4;

/// n / 8 rounded half away from zero.
std::int32_t eighths(std::int64_t n) {
  return static_cast<std::int32_t>(n >= 0 ? (n + 4) / 8 : (n - 4) / 8);
}

} // namespace

int displayScale() {
  const plat::Configuration& global = plat::Configuration::global();
  const int ppmm = global.findParam("ppmm") ? global.getInt("ppmm") : singleDensityScale;
  return (ppmm * devicePercent + 50) / 100;
}

void setDeviceScalePercent(int percent) noexcept {
  devicePercent = percent < 100 ? 100 : percent > 400 ? 400 : percent;
}

int deviceScalePercent() noexcept {
  return devicePercent;
}

rfb::Size singleDensitySize(rfb::Size image, int scale) {
  return {eighths(std::int64_t{image.width} * scale * 2),
          eighths(std::int64_t{image.height} * scale * 2)};
}

rfb::Size doubleDensitySize(rfb::Size image, int scale) {
  return {eighths(std::int64_t{image.width} * scale), eighths(std::int64_t{image.height} * scale)};
}

} // namespace xnutil
