#include "mui/EditText.h"

#include "plat/utf8.h"

#include <algorithm>
#include <cstring>

namespace mui {

namespace {

constexpr char32_t replacement = 0xFFFD;

// The code point that starts at `units[i]` and how many units it takes; a
// lone surrogate half stands for U+FFFD.
char32_t codePointAt(const char16_t* units, int length, int i, int* taken) {
  const char32_t unit = units[i];
  *taken = 1;
  if (isHighSurrogate(unit) && i + 1 < length && isLowSurrogate(units[i + 1])) {
    *taken = 2;
    return 0x10000 + ((unit - 0xD800) << 10) + (units[i + 1] - 0xDC00);
  }
  return isSurrogate(unit) ? replacement : unit;
}

} // namespace

EditText::EditText(const char16_t* units, int length, bool secure) : units_(length, secure) {
  std::copy(units, units + length, units_.data());
  length_ = length;
  selectionStart_ = selectionEnd_ = length;
}

EditText EditText::fromUtf8(const char* text, bool secure) {
  const char* cursor = text ? text : "";
  EditText result(secure);
  // UTF-16 never takes more units than UTF-8 takes bytes.
  result.units_ = plat::MBuf<char16_t>(static_cast<std::int32_t>(std::strlen(cursor)), secure);
  char16_t* out = result.units_.data();
  while (*cursor) {
    int c = plat::decodeUtf8(cursor);
    if (c < 0)
      c = replacement;
    if (c >= 0x10000) {
      *out++ = static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
      *out++ = static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
      *out++ = static_cast<char16_t>(c);
    }
  }
  result.length_ = static_cast<int>(out - result.units_.data());
  result.selectionStart_ = result.selectionEnd_ = result.length_;
  return result;
}

bool EditText::operator==(const EditText& other) const noexcept {
  return length_ == other.length_ && std::equal(units(), units() + length_, other.units());
}

void EditText::select(int start, int end) {
  start = std::clamp(start, 0, length_);
  end = std::clamp(end, 0, length_);
  selectionStart_ = std::min(start, end);
  selectionEnd_ = std::max(start, end);
}

void EditText::replaceSelection(const char16_t* units, int length) {
  const int newLength = length_ - (selectionEnd_ - selectionStart_) + length;
  plat::MBuf<char16_t> replaced(newLength, isSecure());
  char16_t* out = std::copy(this->units(), this->units() + selectionStart_, replaced.data());
  out = std::copy(units, units + length, out);
  std::copy(this->units() + selectionEnd_, this->units() + length_, out);
  units_ = std::move(replaced);
  length_ = newLength;
  selectionStart_ = selectionEnd_ = selectionStart_ + length;
}

plat::MBuf<char> EditText::toUtf8() const {
  // A unit takes at most three bytes; a pair takes four for its two units.
  plat::MBuf<char> bytes(3 * length_ + 1, isSecure());
  char* out = bytes.data();
  for (int i = 0, taken = 0; i < length_; i += taken)
    plat::encodeUtf8(static_cast<int>(codePointAt(units(), length_, i, &taken)), out);
  *out = '\0';
  return bytes;
}

int EditText::bytesBefore(int index) const {
  index = std::clamp(index, 0, length_);
  int bytes = 0;
  for (int i = 0, taken = 0; i < index; i += taken)
    bytes += plat::utf8Length(static_cast<int>(codePointAt(units(), length_, i, &taken)));
  return bytes;
}

int EditText::unitAtByte(int bytes) const {
  int i = 0;
  for (int taken = 0, counted = 0; i < length_; i += taken) {
    counted += plat::utf8Length(static_cast<int>(codePointAt(units(), length_, i, &taken)));
    if (counted > bytes)
      break;
  }
  return i;
}

} // namespace mui
