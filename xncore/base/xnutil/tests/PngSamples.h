// PNG files made in memory with libpng's writer, in every colour type, bit
// depth and interlace method, for the tests of the decoder and of named images.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace xnutil::test {

struct Rgba {
  std::uint8_t r = 0;
  std::uint8_t g = 0;
  std::uint8_t b = 0;
  std::uint8_t a = 0;
};

struct PngSpec {
  PngSpec(int width_, int height_, int colourType_, int bitDepth_, bool interlaced_ = false,
          std::vector<Rgba> palette_ = {}, const Rgba* transparent_ = nullptr)
      : width(width_), height(height_), colourType(colourType_), bitDepth(bitDepth_),
        interlaced(interlaced_), palette(std::move(palette_)), transparent(transparent_) {}

  int width;
  int height;
  int colourType; ///< PNG_COLOR_TYPE_*
  int bitDepth;
  bool interlaced;
  /// For palette images, the palette with each entry's alpha; an alpha below
  /// 255 anywhere adds a transparency chunk. Pixels are then indices (in `r`).
  std::vector<Rgba> palette;
  /// For grey or RGB images, a colour that counts as transparent.
  const Rgba* transparent;
};

/// Encodes `pixels`, row by row, as `spec` says. Grey and palette indices take
/// `r`; channels of 16 bits repeat the byte (0xab becomes 0xabab); grey at
/// small depths keeps the top bits.
std::vector<std::uint8_t> encodePng(const PngSpec& spec, const std::vector<Rgba>& pixels);

/// A width x height image of one colour, RGBA.
std::vector<std::uint8_t> solidPng(int width, int height, Rgba colour);

} // namespace xnutil::test
