#include "plat/String.h"

#include <cstring>

#include "plat/StringUtils.h"

namespace plat {

namespace {

char* duplicate(const char* text, std::size_t length) {
  char* block = new char[length + 1];
  std::memcpy(block, text, length);
  block[length] = '\0';
  return block;
}

} // namespace

String::String(const char* text) : data_(text ? duplicate(text, std::strlen(text)) : nullptr) {}

String::String(const String& other) : String(other.data_) {}

String& String::operator=(const String& other) {
  if (this != &other)
    *this = String(other);
  return *this;
}

String& String::operator=(String&& other) noexcept {
  if (this != &other) {
    delete[] data_;
    data_ = std::exchange(other.data_, nullptr);
  }
  return *this;
}

String::~String() { delete[] data_; }

String String::adopt(char* block) noexcept {
  String result;
  result.data_ = block;
  return result;
}

int compare(const char* a, const char* b) noexcept {
  if (!a || !b)
    return (a != nullptr) - (b != nullptr);
  return std::strcmp(a, b);
}

bool operator==(const String& a, const String& b) noexcept { return compare(a.data_, b.data_) == 0; }

bool operator==(const String& a, const char* b) noexcept { return compare(a.data_, b) == 0; }

std::strong_ordering operator<=>(const String& a, const String& b) noexcept {
  return compare(a.data_, b.data_) <=> 0;
}

String strDup(const char* text, int maxLen) {
  if (!text)
    return String();
  std::size_t length = strLenMax(text, maxLen);
  return String::adopt(duplicate(text, length));
}

} // namespace plat
