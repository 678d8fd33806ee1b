// UTF-8, the only text encoding inside the system: a strict decoder, the
// encoder, validation and repair, the log-safe rendering of arbitrary bytes,
// and the one other code page that the system speaks, Latin-1.
#pragma once

#include "plat/String.h"

namespace plat {

inline constexpr int maxCodePoint = 0x10FFFF;
inline constexpr int replacementChar = 0xFFFD;

/// Decodes one character at `cursor` and advances past it. Returns the code
/// point, 0 for the NUL, or -1 for an invalid sequence (then `cursor` stands on
/// the first byte not taken as part of it). `available` bounds the bytes read.
int decodeUtf8(const char*& cursor, int available = 4);

/// Bytes that `codePoint` takes in UTF-8; 0 above 0x10FFFFF. It answers 4 for
/// values between 0x110000 and 0x10FFFFF that the codec refuses.
int utf8Length(int codePoint);

/// Writes the sequence of `codePoint` and advances `cursor`; throws
/// Exception "Unicode out of range" above 0x10FFFF.
void encodeUtf8(int codePoint, char*& cursor);

/// True when [begin, end) is valid UTF-8; a null `end` means up to the NUL.
bool isValidUtf8(const char* begin, const char* end = nullptr);

/// Decode steps up to `end` or the NUL; an invalid sequence counts as one.
int codePointCount(const char* begin, const char* end = nullptr);

/// A copy in which every invalid sequence is U+FFFD. With `maxBytes` >= 0 the
/// copy stops before the character that would pass `maxBytes`.
String repairUtf8(const char* begin, const char* end = nullptr, int maxBytes = -1);

/// Renders arbitrary bytes for a log line: controls and invalid bytes become
/// escapes introduced by `escapeChar`, which is itself doubled.
String visibleText(const char* text, char escapeChar = '\\');

String latin1ToUtf8(const char* text);
String utf8ToLatin1(const char* text);

} // namespace plat
