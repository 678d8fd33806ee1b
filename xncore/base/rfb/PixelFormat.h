// PixelFormat: how a pixel sits in memory, as the 16-byte record that also
// travels on the wire. True-colour pixels hold their channels at shifts with
// maxima of the form 2^n - 1; colour-map pixels are indices. The standard
// formats are reached through accessors; pfArgb8888 is the one images with
// alpha decode to, and pfRgb888 the one painting has a fast path for.
#pragma once

#include <cstddef>
#include <cstdint>

namespace rfb {

struct PixelFormat {
  static constexpr std::size_t wireSize = 16;
  static constexpr std::size_t printSize = 128;

  std::uint8_t bpp = 8;
  std::uint8_t depth = 8;
  std::uint8_t bigEndian = 0;
  std::uint8_t trueColour = 1;
  std::uint16_t redMax = 7;
  std::uint16_t greenMax = 7;
  std::uint16_t blueMax = 3;
  std::uint16_t alphaMax = 0;
  std::uint8_t redShift = 0;
  std::uint8_t greenShift = 3;
  std::uint8_t blueShift = 6;
  std::uint8_t alphaShift = 0;

  constexpr PixelFormat() = default;
  /// A little-endian format from its sizes, maxima (red, green, blue, alpha)
  /// and shifts in the same order.
  constexpr PixelFormat(int bpp_, int depth_, bool trueColour_, int rMax, int gMax, int bMax,
                        int aMax, int rShift, int gShift, int bShift, int aShift)
      : bpp(static_cast<std::uint8_t>(bpp_)), depth(static_cast<std::uint8_t>(depth_)),
        bigEndian(0), trueColour(trueColour_ ? 1 : 0), redMax(static_cast<std::uint16_t>(rMax)),
        greenMax(static_cast<std::uint16_t>(gMax)), blueMax(static_cast<std::uint16_t>(bMax)),
        alphaMax(static_cast<std::uint16_t>(aMax)), redShift(static_cast<std::uint8_t>(rShift)),
        greenShift(static_cast<std::uint8_t>(gShift)), blueShift(static_cast<std::uint8_t>(bShift)),
        alphaShift(static_cast<std::uint8_t>(aShift)) {}

  /// Equal as pixel layouts: byte order matters only above 8 bpp, and
  /// colour-map formats ignore maxima and shifts.
  bool equal(const PixelFormat& other) const noexcept;
  friend bool operator==(const PixelFormat& a, const PixelFormat& b) noexcept { return a.equal(b); }

  constexpr int bytesPerPixel() const { return bpp / 8; }
  constexpr bool hasAlpha() const { return trueColour && alphaMax != 0; }

  bool isValid() const noexcept;
  /// All maxima fit a byte and all shifts are whole bytes.
  bool isByteAligned() const noexcept;
  /// In true colour, depth becomes the number of bits the four channels use.
  void setDepthFromMasks() noexcept;
  /// Turns a big-endian byte-aligned format into the little-endian one that
  /// puts the same bytes in the same places. False, and no change, when the
  /// channels are not byte-aligned.
  bool makeLittleEndian() noexcept;

  /// "palN" (N 1..8) or "rgbABC" / "bgrABC" (digits 1..9, widths from the most
  /// significant channel), names without regard to case. Alpha is left alone.
  bool parse(const char* text) noexcept;
  /// "depth 24 (32 bpp) little-endian rgb888" and the like, into `buffer` of
  /// printSize characters.
  void print(char* buffer) const noexcept;

  /// The wire form: sizes, flags, maxima big-endian, shifts, alpha last.
  void write(std::uint8_t* wire) const noexcept;
  /// Reads the wire form; an alpha that depth does not account for is dropped,
  /// since a peer may send anything in those bytes.
  void read(const std::uint8_t* wire) noexcept;
};

const PixelFormat& pfRgb888() noexcept;
const PixelFormat& pfBgr888() noexcept;
const PixelFormat& pfRgb565() noexcept;
const PixelFormat& pfRgb555() noexcept;
const PixelFormat& pfRgb222() noexcept;
const PixelFormat& pfRgb111() noexcept;
const PixelFormat& pfPal8() noexcept;
const PixelFormat& pfArgb8888() noexcept;
const PixelFormat& pfAbgr8888() noexcept;

} // namespace rfb
