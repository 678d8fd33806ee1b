// Free functions on NUL-terminated UTF-8 strings. All accept a null string
// unless said otherwise. Whitespace is exactly space, tab, line feed and
// carriage return.
#pragma once

#include <cstddef>
#include <cstdint>
#include <set>

#include "plat/String.h"

namespace plat {

bool isWhitespace(char ch) noexcept;

/// Length in bytes; 0 for null.
std::size_t strLen(const char* text) noexcept;
/// As strLen, but never looks past `maxLen` bytes (unbounded when `maxLen` < 0).
std::size_t strLenMax(const char* text, int maxLen) noexcept;
/// Copies at most destSize - 1 bytes, always terminates; returns the length of `src`.
std::size_t strCopy(char* dest, const char* src, std::size_t destSize) noexcept;

// A null prefix matches everything; null text matches only an empty prefix.
bool startsWith(const char* text, const char* prefix) noexcept;
bool startsWithNoCase(const char* text, const char* prefix) noexcept;
bool endsWith(const char* text, const char* suffix) noexcept;
bool endsWithNoCase(const char* text, const char* suffix) noexcept;
/// The first place of `needle` in `text` regardless of case, or null.
const char* findNoCase(const char* text, const char* needle) noexcept;

/// True when `ch` occurs before `end` or the NUL.
bool containsChar(const char* begin, const char* end, char ch) noexcept;
bool hasNonSpace(const char* text) noexcept;

// In place.
void lowerAscii(char* text) noexcept;
void upperAscii(char* text) noexcept;
void lowerLocale(char* text) noexcept;
void upperLocale(char* text) noexcept;
void removeChars(char* text, const char* set) noexcept;
void trimLeft(char* text) noexcept;
void trimRight(char* text) noexcept;

/// `text` with `ch` between every group of `n` bytes; `n` of 0 leaves it alone.
String insertEvery(const char* text, char ch, int n);

/// 64-bit FNV-1a over the bytes; null gives the offset basis.
std::uint64_t hash64(const char* text) noexcept;

// Destructive tokenisers over a writable text. Each returns the next token,
// writes a NUL over the delimiter that ended it and moves `cursor` behind it;
// after the last token `cursor` is null, and a further call returns null. With
// `skipEmpty`, runs of delimiters are skipped so that no token is empty.
char* nextToken(char*& cursor, char delimiter, bool skipEmpty = false) noexcept;
/// Stores the delimiter that ended the token in `foundDelimiter`, or 0 at the end.
char* nextTokenAny(char*& cursor, const char* delimiters, char* foundDelimiter,
                   bool skipEmpty = false) noexcept;
char* nextTokenStr(char*& cursor, const char* delimiter, bool skipEmpty = false) noexcept;

/// Cuts at the last `ch`: returns the text after it and leaves `cursor` on the
/// text before it; without `ch` returns the whole text and sets `cursor` to null.
char* splitLast(char*& cursor, char ch) noexcept;

/// The pieces of `text` between `ch`; an empty text gives one empty piece.
std::set<String> splitToSet(const char* text, char ch);

} // namespace plat
