#include "plat/SysColors.h"

#include <cstring>

namespace plat {

namespace {

SysColors* installed = nullptr;

struct Named {
  const char* name;
  std::uint32_t light;
  std::uint32_t dark;
};

// The system names first, with their light and dark values, then the fixed ones.
constexpr Named palette[] = {
    {"contentBg", 0xffffff, 0x000000},
    {"contentText", 0x000000, 0xffffff},
    {"disabledText", 0x808080, 0x808080},
    {"buttonBg", 0xececec, 0x404040},
    {"buttonText", 0x404040, 0xececec},
    {"selectedBg", 0xd1e8ff, 0x41648a},
    {"selectedBd", 0x66a7e8, 0x0e5ccd},
    {"selectedText", 0xffffff, 0xffffff},
    {"inactiveBg", 0xf0f0f0, 0x323232},
    {"inactiveBd", 0xdedede, 0x555555},
    {"helpBg", 0xffffd3, 0x443322},
    {"helpText", 0x000000, 0xffffff},
    {"statusGreen", 0x048c00, 0x048c00},
    {"statusYellow", 0xe6a000, 0xe6a000},
    {"statusRed", 0xc90000, 0xc90000},
    {"statusText", 0xffffff, 0xffffff},
    {"customBigBtnBg", 0x1976d2, 0x1976d2},
    {"customBigBtnText", 0xffffff, 0xffffff},
    {"white", 0xffffff, 0xffffff},
    {"silver", 0xc0c0c0, 0xc0c0c0},
    {"gray", 0x808080, 0x808080},
    {"black", 0x000000, 0x000000},
    {"red", 0xff0000, 0xff0000},
    {"maroon", 0x800000, 0x800000},
    {"yellow", 0xffff00, 0xffff00},
    {"olive", 0x808000, 0x808000},
    {"lime", 0x00ff00, 0x00ff00},
    {"green", 0x008000, 0x008000},
    {"aqua", 0x00ffff, 0x00ffff},
    {"teal", 0x008080, 0x008080},
    {"blue", 0x0000ff, 0x0000ff},
    {"navy", 0x000080, 0x000080},
    {"fuchsia", 0xff00ff, 0xff00ff},
    {"purple", 0x800080, 0x800080},
    {"orange", 0xffa500, 0xffa500},
};

Rgb fromWord(std::uint32_t word) {
  return {static_cast<std::uint8_t>(word >> 16), static_cast<std::uint8_t>(word >> 8),
          static_cast<std::uint8_t>(word)};
}

int hexDigit(char c) {
  if (c >= '0' && c <= '9')
    return c - '0';
  if (c >= 'a' && c <= 'f')
    return c - 'a' + 10;
  if (c >= 'A' && c <= 'F')
    return c - 'A' + 10;
  return -1;
}

bool parseLiteral(const char* text, Rgb* rgb) {
  if (text[0] != '#' || std::strlen(text) != 7)
    return false;
  std::uint32_t word = 0;
  for (int i = 1; i < 7; ++i) {
    const int digit = hexDigit(text[i]);
    if (digit < 0)
      return false;
    word = word << 4 | static_cast<std::uint32_t>(digit);
  }
  *rgb = fromWord(word);
  return true;
}

} // namespace

SysColors* SysColors::provider() noexcept {
  return installed;
}

void SysColors::setProvider(SysColors* provider) noexcept {
  installed = provider;
}

bool resolveColour(const char* name, Rgb* rgb) {
  if (!name)
    return false;
  if (installed && installed->lookup(name, rgb))
    return true;
  if (parseLiteral(name, rgb))
    return true;
  const bool dark = installed && installed->isDark();
  for (const Named& entry : palette) {
    if (std::strcmp(entry.name, name) == 0) {
      *rgb = fromWord(dark ? entry.dark : entry.light);
      return true;
    }
  }
  return false;
}

bool resolveColour(const char* name, const char* fallback, Rgb* rgb) {
  return resolveColour(name, rgb) || resolveColour(fallback, rgb);
}

} // namespace plat
