// loc::Translation: one text of one language in a catalog. A text is read
// either as a format string, which the caller fills with arguments, or as a
// plain text shown as it stands; the first read decides, and a later read the
// other way is a fatal assertion, since a plain text has already had its "%%"
// turned into "%" and would be formatted wrongly.
#pragma once

#include <cstdint>

namespace loc {

class Translation {
public:
  static constexpr std::int32_t TR_NEW = 0;       ///< never read
  static constexpr std::int32_t TR_RAW = 1;       ///< read as a format string
  static constexpr std::int32_t TR_FORMATTED = 2; ///< read as a plain text

  Translation(const char* text, bool ownsText) noexcept : text_(text), ownsText_(ownsText) {}

  /// The text for a reader that formats it (`raw`) or shows it as it stands.
  /// `key` is for the assertion's detail. Runs under the catalogs' lock.
  const char* get(bool raw, const char* key);
  /// Puts `text` in place; the next read decides its use afresh.
  void replace(const char* text, bool ownsText) noexcept;

  const char* text() const noexcept { return text_; }
  bool ownsText() const noexcept { return ownsText_; }
  std::int32_t state() const noexcept { return state_; }

private:
  const char* text_;
  bool ownsText_;
  std::int32_t state_ = TR_NEW;
};

} // namespace loc
