// plat::SysColors: the colours of the desktop by name. Forms name colours
// ("contentText", "selectedBg", "#1976d2", "orange"); a name resolves through
// the installed provider (the toolkit binding asks its platform), then as a
// "#rrggbb" literal, then through the built-in palette, which has a light and
// a dark variant chosen by the provider's darkness.
#pragma once

#include <cstdint>

namespace plat {

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend bool operator==(Rgb, Rgb) = default;
};

class SysColors {
public:
  virtual ~SysColors() = default;
  /// The platform's colour for one of the palette's system names.
  virtual bool lookup(const char* name, Rgb* rgb) = 0;
  /// True when the platform's content background is dark.
  virtual bool isDark() = 0;

  /// The provider in force, or null; the caller keeps it alive while installed.
  static SysColors* provider() noexcept;
  static void setProvider(SysColors* provider) noexcept;
};

/// Resolves a colour name or literal; false when nothing knows it.
bool resolveColour(const char* name, Rgb* rgb);
/// As above, falling back to `fallback` when `name` is null or unknown.
bool resolveColour(const char* name, const char* fallback, Rgb* rgb);

} // namespace plat
