// mui::EditText: the text of an edit control as the control holds it, in
// UTF-16 units, with its selection. Edit filters are decided on it, and the
// headless binding keeps its edits' text in it. The units live in a
// plat::MBuf that, for a password, is wiped whenever it is released, as is
// every UTF-8 copy made of it.
#pragma once

#include "plat/MBuf.h"
#include "plat/String.h"

namespace mui {

class EditText {
public:
  explicit EditText(bool secure = false) : units_(0, secure) {}
  /// The text of UTF-8 `text`; an invalid sequence becomes U+FFFD.
  static EditText fromUtf8(const char* text, bool secure);
  EditText(const char16_t* units, int length, bool secure);

  const char16_t* units() const noexcept { return units_.data(); }
  int length() const noexcept { return length_; }
  bool isSecure() const noexcept { return units_.isSecure(); }
  bool operator==(const EditText& other) const noexcept;

  /// The selection, from its start to its end; the caret stands at the end
  /// when it is empty.
  int selectionStart() const noexcept { return selectionStart_; }
  int selectionEnd() const noexcept { return selectionEnd_; }
  bool hasSelection() const noexcept { return selectionStart_ < selectionEnd_; }
  /// Clamps both ends into the text and orders them.
  void select(int start, int end);
  /// Puts `units` in place of the selection; the caret follows them.
  void replaceSelection(const char16_t* units, int length);
  void replaceSelection(const EditText& text) { replaceSelection(text.units(), text.length()); }

  /// The text in UTF-8, NUL-terminated, as secure as this text.
  plat::MBuf<char> toUtf8() const;
  /// The UTF-8 byte offset of unit `index`, and the reverse (rounding down
  /// to a whole character); both clamp into the text.
  int bytesBefore(int index) const;
  int unitAtByte(int bytes) const;

private:
  plat::MBuf<char16_t> units_;
  int length_ = 0;
  int selectionStart_ = 0;
  int selectionEnd_ = 0;
};

/// Whether `unit` is one half of a surrogate pair, and which.
constexpr bool isSurrogate(char32_t unit) noexcept {
  return unit >= 0xD800 && unit <= 0xDFFF;
}
constexpr bool isHighSurrogate(char32_t unit) noexcept {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool isLowSurrogate(char32_t unit) noexcept {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

} // namespace mui
