// Every parameter that the program declares, as the global group holds it.
#include "plat/BinaryParameter.h"
#include "plat/Configuration.h"
#include "plat/IntParameter.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

struct Declared {
  const char* name;
  const char* type;
  const char* defaultText;
  int min;
  int max;
  bool advanced;
  const char* key; // null for a literal description
  const char* description;
};

const Declared declared[] = {
    {"Permissions", "string", "", 0, 0, false, "smisc_permissionscontrol_param_permissions",
     "A comma-separated list of permissions for connected users. Each entry in the list is of "
     "the form USER_OR_GROUP:PERMISSIONS."},
    {"Locale", "string", "", 0, 0, false, "loc_param_locale",
     "Locale to use. Specify one of en_US, de_DE, es_ES, fr_FR, pt_BR, or zh_CN, or leave empty "
     "to select the user or system locale as appropriate."},
    {"Log", "string", "", 0, 0, false, "plat_param_log",
     "Record events in the format <log>:<target>:<level>[,...]."},
    {"LogDir", "string", "", 0, 0, false, "plat_param_logdir",
     "Directory in which to store log output directed to file."},
    {"LogFile", "string", "", 0, 0, false, "plat_param_logfile",
     "File in which to store log output directed to file."},
    {"LogKeepDays", "int", "30", 0, INT_MAX, false, "plat_param_log_keep_days",
     "Keep log files for X days."},
    {"CompactLog", "bool", "0", 0, 0, true, nullptr,
     "Whether to produce more compact logging lines for readability.  Also produces times in "
     "local timezone instead of UTC"},
    {"ppmm", "int", "4", 1, 32, true, nullptr, "Physical display units per mm."},
    {"TextSizeFactor", "int", "100", 1, 1000, true, nullptr,
     "Factor for text size on this system, normal being 100"},
    {"VkMap", "string", "", 0, 0, true, nullptr,
     "Comma-separated list of mappings from keysym to virtual key code. Each mapping is a "
     "hexadecimal keysym followed by : and a hexadecimal VK code. Extended VK codes are specified "
     "as 0x100 plus the base VK code."},
    {"CreateProcessWithLogonFlags", "int", "1", 0, INT_MAX, true, nullptr,
     "Flags to be provided to calls to CreateProcessWithLogonW"},
    {"MaxOutBufferSize", "int", "134217728", 16384, INT_MAX, true, nullptr,
     "The maximum number of bytes to buffer internally when writing to slow connections.  Larger "
     "values improve concurrency, smaller values reduce memory usage.  Changes to this setting "
     "affect new connections only."},
    {"_BadUtf8Assert", "bool", "0", 0, 0, true, nullptr,
     "Make bad UTF-8 cause an assertion failure for debugging"},
    {"_noRelaunch", "bool", "0", 0, 0, true, nullptr, "Don't attempt to relaunch via UAC prompt."},
    {"_DebugLayout", "bool", "0", 0, 0, true, nullptr, ""},
    {"_FromGui", "bool", "0", 0, 0, true, nullptr, ""},
    {"_MissingDomainNull", "bool", "1", 0, 0, false, nullptr, ""},
};

TEST(DeclaredParameters, EachAsDeclared) {
  for (const Declared& d : declared) {
    SCOPED_TRACE(d.name);
    plat::ConfigParameter* parameter = plat::Configuration::global().findParam(d.name, false);
    ASSERT_NE(parameter, nullptr);
    EXPECT_STREQ(parameter->name(), d.name);
    EXPECT_STREQ(parameter->typeName(), d.type);
    EXPECT_EQ(std::string(parameter->getDefault().get()), d.defaultText);
    EXPECT_EQ(parameter->isAdvanced(), d.advanced);
    EXPECT_STREQ(parameter->locDesc(), d.key);
    EXPECT_STREQ(parameter->getDescription(), d.description);
    EXPECT_FALSE(parameter->ownsText());
    if (auto* number = dynamic_cast<plat::IntParameter*>(parameter)) {
      EXPECT_EQ(number->min(), d.min);
      EXPECT_EQ(number->max(), d.max);
    }
  }
}

TEST(DeclaredParameters, NothingElseIsDeclared) {
  int count = 0;
  plat::Configuration::global().forEachParam([&](plat::ConfigParameter& parameter) {
    ++count;
    bool known = false;
    for (const Declared& d : declared)
      known = known || std::string(d.name) == parameter.name();
    EXPECT_TRUE(known) << parameter.name();
  });
  EXPECT_EQ(count, static_cast<int>(std::size(declared)));
}

} // namespace
