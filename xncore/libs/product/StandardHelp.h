// The help function that the program hands to the command line: "-help"
// prints the product's full information text and the parameter list, "-help all" adds
// advanced parameters, log names and destinations, and "-help xml" writes the
// parameters as an XML document. Either way the process then ends with 0.
#pragma once

#include <cstdio>

namespace plat {
class Configuration;
}

namespace product {

/// For Configuration::parseArgs: writes the help of `mode` to standard output
/// and exits with status 0.
[[noreturn]] void standardHelp(int mode, plat::Configuration& configuration);

/// What standardHelp shows for `mode`, written to `out`.
void writeStandardHelp(int mode, const plat::Configuration& configuration, std::FILE* out);

} // namespace product
