// Reads the document that "oxnpermissionscreator -help xml" wrote and checks
// that it describes this program's global group: every parameter it lists
// exists with the same value, and every public parameter is listed.
#include "oxnpermissionscreator/EntryFrame.h"

#include "plat/Configuration.h"
#include "plat/Exception.h"
#include "plat/XmlConfig.h"
#include "product/ProductInit.h"

#include <cstdio>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s <xml file>\n", argv[0]);
    return 2;
  }
  std::FILE* file = std::fopen(argv[1], "rb");
  if (!file) {
    std::perror(argv[1]);
    return 2;
  }
  std::string text;
  char buffer[4096];
  for (std::size_t got; (got = std::fread(buffer, 1, sizeof buffer, file)) > 0;)
    text.append(buffer, got);
  std::fclose(file);

  try {
    // The defaults that the program's start gives the log.
    product::initLogDefaults(nullptr, "$LOCAL_APPDATA_COMPANY",
                             (std::string(app::applicationName) + ".log").c_str(),
                             app::applicationName);
    plat::Configuration read("Read", nullptr);
    plat::readXmlConfig(read, text.c_str(), nullptr);
    plat::Configuration& global = plat::Configuration::global();
    if (!read.sameValues(global)) {
      std::fprintf(stderr, "values differ: %s\n", read.differentNames(global).get());
      return 1;
    }
    int missing = 0;
    global.forEachParam([&](plat::ConfigParameter& parameter) {
      if (parameter.name()[0] != '_' && !read.findParam(parameter.name(), false)) {
        std::fprintf(stderr, "not listed: %s\n", parameter.name());
        ++missing;
      }
    });
    if (missing)
      return 1;
    std::printf("%s: the global group, read back\n", argv[1]);
    return 0;
  } catch (const plat::Exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
