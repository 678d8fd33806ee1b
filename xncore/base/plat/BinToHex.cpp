#include "plat/BinToHex.h"

#include "plat/Assertion.h"

#include <cstring>

namespace plat {

int hexDigitValue(char ch) noexcept {
  if (ch >= '0' && ch <= '9')
    return ch - '0';
  if (ch >= 'a' && ch <= 'f')
    return ch - 'a' + 10;
  if (ch >= 'A' && ch <= 'F')
    return ch - 'A' + 10;
  return -1;
}

bool addHexDigit(char ch, int& value) noexcept {
  int digit = hexDigitValue(ch);
  if (digit < 0)
    return false;
  value = value * 16 + digit;
  return true;
}

char intToHex(int i) {
  XN_ASSERT_THROW(i >= 0 && i <= 15);
  return "0123456789abcdef"[i];
}

String binToHex(const unsigned char* data, std::size_t length) {
  char* text = new char[2 * length + 1];
  for (std::size_t i = 0; i < length; ++i) {
    text[2 * i] = intToHex(data[i] >> 4);
    text[2 * i + 1] = intToHex(data[i] & 0xF);
  }
  text[2 * length] = '\0';
  return String::adopt(text);
}

String binToHex(const MBuf<unsigned char>& buffer) {
  return binToHex(buffer.data(), static_cast<std::size_t>(buffer.length()));
}

bool hexToBytes(const char* text, int count, unsigned char* out) noexcept {
  for (int i = 0; i < count; ++i) {
    int value = 0;
    if (!addHexDigit(text[2 * i], value) || !addHexDigit(text[2 * i + 1], value))
      return false;
    out[i] = static_cast<unsigned char>(value);
  }
  return true;
}

bool hexToBin(const char* text, MBuf<unsigned char>& out) {
  std::size_t length = text ? std::strlen(text) : 0;
  if (length % 2 != 0)
    return false;
  MBuf<unsigned char> decoded(static_cast<std::int32_t>(length / 2));
  if (!hexToBytes(text, decoded.length(), decoded.data()))
    return false;
  out = std::move(decoded);
  return true;
}

MBuf<unsigned char> hexToBinChecked(const char* text) {
  MBuf<unsigned char> result;
  if (!hexToBin(text, result))
    throw Exception("Bad hex string");
  return result;
}

} // namespace plat
