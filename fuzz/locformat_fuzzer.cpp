// Translated format texts with arguments. Texts come from string files that
// anyone can edit, so the formatter sees arbitrary bytes. The first byte gives
// the number of arguments (low two bits) and their types (two bits each);
// each number takes four bytes and each text runs to a NUL; the rest is the
// format text. Invariants: text without '%' comes out unchanged, the output
// stays within what the conversions can produce, and formatting is repeatable.
#include "FuzzCheck.h"

#include "loc/Localize.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

using xnfuzz::check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0)
    return 0;
  const char* cursor = reinterpret_cast<const char*>(data) + 1;
  const char* end = reinterpret_cast<const char*>(data) + size;
  int count = data[0] & 3;
  std::vector<std::string> texts(3);
  std::vector<loc::LocArg> arguments;
  std::size_t longest = 12; // a decimal number with its sign
  for (int index = 0; index < count; ++index) {
    int type = (data[0] >> (2 + 2 * index)) & 3;
    if (type >= 2) {
      const char* nul = std::find(cursor, end, '\0');
      texts[index].assign(cursor, nul);
      longest = std::max(longest, texts[index].size() * 3); // repairs may grow a byte to three
      arguments.emplace_back(texts[index].c_str());
      cursor = nul == end ? end : nul + 1;
      continue;
    }
    std::uint32_t value = 0;
    std::memcpy(&value, cursor, std::min<std::size_t>(4, end - cursor));
    cursor += std::min<std::size_t>(4, end - cursor);
    if (type == 0)
      arguments.emplace_back(static_cast<int>(value));
    else
      arguments.emplace_back(static_cast<unsigned>(value));
  }
  for (std::size_t index = 0; index + 1 < arguments.size(); ++index)
    arguments[index].setNext(&arguments[index + 1]);
  std::string text(cursor, std::find(cursor, end, '\0'));
  const loc::LocArg* list = arguments.empty() ? nullptr : arguments.data();

  plat::DString first, second;
  loc::format(first, text.c_str(), list);
  loc::format(second, text.c_str(), list);
  check(first.get() != nullptr && std::strcmp(first.get(), second.get()) == 0);
  std::size_t length = std::strlen(first.get());
  if (text.find('%') == std::string::npos)
    check(text == first.get());
  std::size_t conversions = std::count(text.begin(), text.end(), '%');
  check(length <= text.size() + conversions * (longest + 2));
  return 0;
}
