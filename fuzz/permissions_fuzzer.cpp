// Permission texts as they come from a command line or an edited parameter.
// Invariants: a text that parses reads back as exactly itself; its canonical
// form parses again to the same states and reads back unchanged; a text that
// doesn't parse raises ParseException and nothing else.
#include "FuzzCheck.h"

#include "xnauth/Permissions.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

using xnfuzz::check;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The system's texts are NUL-terminated: whatever follows a NUL is never seen.
  const char* bytes = reinterpret_cast<const char*>(data);
  std::string text(bytes, ::strnlen(bytes, size));

  xnauth::Permissions parsed;
  try {
    parsed.setText(text.c_str());
  } catch (const xnauth::Permissions::ParseException& e) {
    check(std::strcmp(e.type(), "PermissionsParse") == 0);
    check(std::strncmp(e.what(), "Invalid permissions string: ", 28) == 0);
    return 0;
  }
  check(text == parsed.getText());

  xnauth::Permissions canonical(parsed);
  canonical.normalize();
  xnauth::Permissions reparsed(canonical.getText());
  check(reparsed.equals(parsed));
  check(reparsed.equalsText(canonical));
  check(parsed.equalsAllowed(canonical) && parsed.isSubsetOf(canonical));
  return 0;
}
