// The process's argument vector, as UTF-8, and the rules that split a single
// command-line string into arguments on platforms that hand over only that.
#pragma once

#include "plat/String.h"

#include <vector>

namespace app {

/// Splits `line` into arguments. Blanks and tabs outside double quotes end an
/// argument; n backslashes before a quote stand for n/2 backslashes and, when n
/// is odd, a literal quote, while with n even the quote toggles quoting;
/// backslashes before anything else stand for themselves; "" is an empty argument.
std::vector<plat::String> splitCommandLine(const char* line);

/// The platform's arguments of this process as UTF-8, argument 0 first. Where
/// the system hands over a vector, `argc` and `argv` are it.
std::vector<plat::String> fetchProcessArguments(int argc, char** argv);

/// Replaces the process-wide argument vector.
void setProcessArguments(std::vector<plat::String> arguments);
/// The process-wide vector, ending with a null entry; argument 0 is the program's path.
const char* const* processArguments();
int processArgumentCount();

} // namespace app
