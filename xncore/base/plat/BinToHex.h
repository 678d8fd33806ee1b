// Hexadecimal text for binary data: two lower-case digits a byte out, either
// case accepted in.
#pragma once

#include "plat/MBuf.h"
#include "plat/String.h"

#include <cstddef>

namespace plat {

String binToHex(const unsigned char* data, std::size_t length);
String binToHex(const MBuf<unsigned char>& buffer);

/// Fills `out` from `text`. False on an odd length or a non-hex digit, leaving
/// `out` unchanged; on success the old contents are released (wiped when
/// secure) and `out` is no longer secure.
bool hexToBin(const char* text, MBuf<unsigned char>& out);
/// As hexToBin, throwing Exception "Bad hex string" on failure.
MBuf<unsigned char> hexToBinChecked(const char* text);

/// Reads exactly `count` bytes from the first 2 * `count` characters.
bool hexToBytes(const char* text, int count, unsigned char* out) noexcept;

/// The value of hex digit `ch`, either case, or -1.
int hexDigitValue(char ch) noexcept;

/// If `ch` is a hex digit: value = value * 16 + digit, and true.
bool addHexDigit(char ch, int& value) noexcept;

/// The lower-case digit for 0 to 15; throws AssertionFail for anything else.
char intToHex(int value);

} // namespace plat
