#include "product/StandardHelp.h"

#include "plat/Configuration.h"
#include "plat/XmlConfig.h"
#include "product/ProductInfo.h"

#include <cstdlib>

namespace product {

void writeStandardHelp(int mode, const plat::Configuration& configuration, std::FILE* out) {
  if (mode == plat::Configuration::helpXml) {
    plat::String document = plat::writeXmlConfig(configuration, false, false, nullptr);
    std::fputs(document.get(), out);
    return;
  }
  // On Linux standard output is the terminal that started the program, so
  // there is no console to open and no key to wait for.
  std::fprintf(out, "%s\n\n", fullInfo().get());
  configuration.printHelp(mode == plat::Configuration::helpAll, true, out);
}

void standardHelp(int mode, plat::Configuration& configuration) {
  writeStandardHelp(mode, configuration, stdout);
  std::fflush(stdout);
  std::exit(0);
}

} // namespace product
