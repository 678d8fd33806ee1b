// A settings file as a user or an administrator may have written it.
// Invariants: every entry has a non-empty name and neither name nor value
// holds a line feed or starts or ends with a blank; setting an entry's value
// again leaves a text in which the first entry of that name has that value and
// no later one does; removing a name leaves no entry of it; and the entries of
// other names are the same, in the same order, either way.
#include "FuzzCheck.h"

#include "plat/NameCompare.h"
#include "xnutil/ConfigText.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace {

using xnfuzz::check;

bool isBlank(char ch) {
  return ch == ' ' || ch == '\t';
}

bool wellFormed(const char* text) {
  std::size_t length = std::strlen(text);
  return !std::strchr(text, '\n') &&
         (length == 0 || (!isBlank(text[0]) && !isBlank(text[length - 1])));
}

std::vector<std::string> othersThan(const std::vector<xnutil::ConfigEntry>& entries,
                                    const char* name) {
  std::vector<std::string> others;
  for (const xnutil::ConfigEntry& entry : entries) {
    if (!plat::equalsNoCase(entry.first.get(), name))
      others.push_back(std::string(entry.first.get()) + "=" + entry.second.get());
  }
  return others;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string text(reinterpret_cast<const char*>(data), size);
  std::vector<xnutil::ConfigEntry> entries = xnutil::parseConfigText(text.c_str());
  for (const xnutil::ConfigEntry& entry : entries) {
    check(*entry.first.get() && *entry.first.get() != '#' && wellFormed(entry.first.get()));
    check(!std::strchr(entry.first.get(), '=') && wellFormed(entry.second.get()));
  }
  if (entries.empty())
    return 0;

  const char* name = entries.back().first.get();
  std::vector<std::string> others = othersThan(entries, name);
  plat::String changed = xnutil::setConfigTextValue(text.c_str(), name, "new value");
  std::vector<xnutil::ConfigEntry> after = xnutil::parseConfigText(changed.get());
  int found = 0;
  for (const xnutil::ConfigEntry& entry : after) {
    if (plat::equalsNoCase(entry.first.get(), name))
      check(++found == 1 && std::strcmp(entry.second.get(), "new value") == 0);
  }
  check(found == 1 && othersThan(after, name) == others);

  plat::String removed = xnutil::setConfigTextValue(text.c_str(), name, nullptr);
  after = xnutil::parseConfigText(removed.get());
  check(othersThan(after, name).size() == after.size() && othersThan(after, name) == others);
  return 0;
}
