// XML documents of a configuration, as "-help xml" writes them or a person
// edits them. Invariants: only plat::Exception leaves the reader; a failed
// parse always names an error with its position; and a document that reads
// writes back and reads again to a group with the same values, whose document
// is the same text.
#include "FuzzCheck.h"

#include "plat/Configuration.h"
#include "plat/Exception.h"
#include "plat/NameCompare.h"
#include "plat/XmlConfig.h"
#include "plat/XmlReader.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <string>

namespace {

using xnfuzz::check;

// Parameters are found by name, so a group in which two share a name (in any
// case) cannot be compared with another by name.
bool namesAreUnique(const plat::Configuration& group) {
  std::set<plat::String, plat::NoCaseLess> names;
  bool unique = true;
  group.forEachParam([&](plat::ConfigParameter& parameter) {
    unique = names.insert(plat::String(parameter.name())).second && unique;
  });
  return unique;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const char* bytes = reinterpret_cast<const char*>(data);

  // The reader takes a buffer with its length, NULs and all.
  plat::XmlDocument document;
  if (!document.parse(bytes, size, nullptr)) {
    const plat::XmlError& error = document.error();
    check(error.code != plat::XmlError::none && error.line >= 1 && error.column >= 1);
    check(document.root() == nullptr);
    check(std::strlen(error.message()) > 0);
  }

  // A configuration is read from NUL-terminated text.
  std::string text(bytes, ::strnlen(bytes, size));
  plat::Configuration group("Fuzz", nullptr);
  try {
    plat::readXmlConfig(group, text.c_str(), nullptr);
  } catch (const plat::Exception&) {
    return 0;
  }
  if (!namesAreUnique(group))
    return 0;

  plat::String written = plat::writeXmlConfig(group, true, true, nullptr);
  plat::Configuration again("Again", nullptr);
  plat::readXmlConfig(again, written.get(), nullptr);
  check(again.sameValues(group));
  check(group.sameValues(again));
  check(std::strcmp(plat::writeXmlConfig(again, true, true, nullptr).get(), written.get()) == 0);
  return 0;
}
