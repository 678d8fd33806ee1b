#include "oxnpermissionscreator/CommandLine.h"

#include "plat/utf8.h"

namespace app {

// The kernel hands over arguments already split, as bytes. They are taken as
// UTF-8; a byte that is not is replaced, so that everything later holds valid text.
std::vector<plat::String> fetchProcessArguments(int argc, char** argv) {
  std::vector<plat::String> arguments;
  arguments.reserve(static_cast<std::size_t>(argc));
  for (int i = 0; i < argc; ++i)
    arguments.push_back(plat::repairUtf8(argv[i]));
  return arguments;
}

} // namespace app
