// The value of "Log" as it comes from a command line, and the source names
// its patterns match. The input is a "Log" text, then after a NUL a name.
// Invariants: an element that parses names a known destination with a level
// of at least 0, and written out again parses to the same; an element that
// does not parse is reported, except the empty ones; a match without regard
// to case follows from one with it; a pattern without "*" matches exactly its
// own text; and replacing characters of a name by "*" still matches it.
#include "FuzzCheck.h"

#include "plat/LogConfig.h"
#include "plat/LogDest.h"
#include "plat/NameCompare.h"
#include "plat/String.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

using xnfuzz::check;

class Sink : public plat::LogDest {
public:
  explicit Sink(const char* name) : LogDest(name) {}
  void write(int, const char*, const char*) override {}
};

Sink sink("sink");
Sink other("Other");

std::FILE* scratch() {
  static std::FILE* file = std::tmpfile();
  return file;
}

void checkElement(const std::string& element) {
  std::FILE* errors = scratch();
  std::rewind(errors);
  plat::LogElement parsed;
  bool ok = plat::parseLogElement(element.c_str(), parsed, errors);
  bool complained = std::ftell(errors) > 0;
  if (!ok) {
    check(complained || element.empty() || element.find("::") != std::string::npos);
    return;
  }
  check(!complained);
  check(parsed.dest == &sink || parsed.dest == &other);
  check(parsed.level >= 0);
  check(element.compare(0, std::strlen(parsed.pattern.get()) + 1,
                        std::string(parsed.pattern.get()) + ":") == 0);
  std::string again = std::string(parsed.pattern.get()) + ":" + parsed.dest->name() + ":" +
                      std::to_string(parsed.level);
  plat::LogElement reparsed;
  check(plat::parseLogElement(again.c_str(), reparsed, nullptr));
  check(std::strcmp(reparsed.pattern.get(), parsed.pattern.get()) == 0);
  check(reparsed.dest == parsed.dest && reparsed.level == parsed.level);
}

void checkPattern(const char* pattern, const std::string& name) {
  bool exact = plat::matchPattern(pattern, name.c_str(), true);
  bool folded = plat::matchPattern(pattern, name.c_str(), false);
  check(!exact || folded);
  if (!std::strchr(pattern, '*')) {
    check(exact == (name == pattern));
    check(folded == plat::equalsNoCase(pattern, name.c_str()));
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const char* bytes = reinterpret_cast<const char*>(data);
  std::size_t textLength = ::strnlen(bytes, size);
  std::string text(bytes, textLength);
  std::string name;
  if (textLength < size)
    name.assign(bytes + textLength + 1, ::strnlen(bytes + textLength + 1, size - textLength - 1));

  for (std::size_t start = 0;;) {
    std::size_t comma = text.find(',', start);
    std::string element = text.substr(start, comma - start);
    checkElement(element);
    checkPattern(element.c_str(), name);
    std::size_t colon = element.find(':');
    if (colon != std::string::npos)
      checkPattern(element.substr(0, colon).c_str(), name);
    if (comma == std::string::npos)
      break;
    start = comma + 1;
  }

  for (std::size_t step = 1; step <= 3 && step <= name.size(); ++step) {
    std::string pattern = name;
    for (std::size_t i = 0; i < pattern.size(); i += step + 1)
      pattern[i] = '*';
    check(plat::matchPattern(pattern.c_str(), name.c_str(), true));
    check(plat::matchPattern(pattern.c_str(), name.c_str(), false));
  }
  check(plat::matchPattern("*", name.c_str(), true));
  return 0;
}
