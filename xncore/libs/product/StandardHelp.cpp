#include "product/StandardHelp.h"

#include "plat/Configuration.h"
#include "plat/DString.h"
#include "plat/XmlConfig.h"
#include "product/ProductVersion.h"

#include <cstdlib>
#include <cstring>

namespace product {

namespace {

// Until product initialisation gives the application its display name.
constexpr const char* applicationName = "oxnpermissionscreator";
constexpr const char* buildDate = __DATE__ " " __TIME__;

} // namespace

plat::String versionLine() {
  const char* version = productVersion() ? productVersion() : "0.1";
  plat::DString line;
  line.appendFormat("%s %s %s (%s)", applicationName, version, "x64", buildDate);
  // The build date pads a one-digit day with a blank.
  while (std::strstr(line.get(), "  "))
    line.replaceAll("  ", " ");
  return line.takeString();
}

void writeStandardHelp(int mode, const plat::Configuration& configuration, std::FILE* out) {
  if (mode == plat::Configuration::helpXml) {
    plat::String document = plat::writeXmlConfig(configuration, false, false, nullptr);
    std::fputs(document.get(), out);
    return;
  }
  // On Linux standard output is the terminal that started the program, so
  // there is no console to open and no key to wait for.
  std::fprintf(out, "%s\n\n", versionLine().get());
  configuration.printHelp(mode == plat::Configuration::helpAll, true, out);
}

void standardHelp(int mode, plat::Configuration& configuration) {
  writeStandardHelp(mode, configuration, stdout);
  std::fflush(stdout);
  std::exit(0);
}

} // namespace product
