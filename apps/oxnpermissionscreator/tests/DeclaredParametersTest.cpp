// Every parameter that the program declares, as the global group holds it,
// and the log sources that "Log" can address.
#include "plat/Configuration.h"
#include "plat/IntParameter.h"
#include "plat/LogSrc.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

TEST(DeclaredParameters, EachAsDeclaredAndNothingElse) {
  struct Declared {
    const char* name;
    const char* type;
    const char* defaultText;
    int min;
    int max;
    bool advanced;
    const char* key; // null for a literal description
  } declared[] = {
      {"Permissions", "string", "", 0, 0, false, "smisc_permissionscontrol_param_permissions"},
      {"Locale", "string", "", 0, 0, false, "loc_param_locale"},
      {"Log", "string", "", 0, 0, false, "plat_param_log"},
      {"LogDir", "string", "", 0, 0, false, "plat_param_logdir"},
      {"LogFile", "string", "", 0, 0, false, "plat_param_logfile"},
      {"LogKeepDays", "int", "30", 0, INT_MAX, false, "plat_param_log_keep_days"},
      {"CompactLog", "bool", "0", 0, 0, true, nullptr},
      {"ppmm", "int", "4", 1, 32, true, nullptr},
      {"TextSizeFactor", "int", "100", 1, 1000, true, nullptr},
      {"VkMap", "string", "", 0, 0, true, nullptr},
      {"CreateProcessWithLogonFlags", "int", "1", 0, INT_MAX, true, nullptr},
      {"MaxOutBufferSize", "int", "134217728", 16384, INT_MAX, true, nullptr},
      {"_BadUtf8Assert", "bool", "0", 0, 0, true, nullptr},
      {"_noRelaunch", "bool", "0", 0, 0, true, nullptr},
      {"_DebugLayout", "bool", "0", 0, 0, true, nullptr},
      {"_FromGui", "bool", "0", 0, 0, true, nullptr},
      {"_MissingDomainNull", "bool", "1", 0, 0, false, nullptr},
  };
  for (const Declared& d : declared) {
    SCOPED_TRACE(d.name);
    plat::ConfigParameter* parameter = plat::Configuration::global().findParam(d.name, false);
    ASSERT_NE(parameter, nullptr);
    EXPECT_STREQ(parameter->name(), d.name);
    EXPECT_STREQ(parameter->typeName(), d.type);
    EXPECT_EQ(std::string(parameter->getDefault().get()), d.defaultText);
    EXPECT_EQ(parameter->isAdvanced(), d.advanced);
    EXPECT_STREQ(parameter->locDesc(), d.key);
    EXPECT_NE(parameter->getDescription(), nullptr);
    if (auto* number = dynamic_cast<plat::IntParameter*>(parameter)) {
      EXPECT_EQ(number->min(), d.min);
      EXPECT_EQ(number->max(), d.max);
    }
  }
  int count = 0;
  plat::Configuration::global().forEachParam([&](plat::ConfigParameter&) { ++count; });
  EXPECT_EQ(count, static_cast<int>(std::size(declared)));
}

TEST(DeclaredLogSources, ThoseOfTheProgramAndTheBaseExist) {
  for (const char* name :
       {"oxnpermissionscreator", "DsObjectPicker", "Assertion", "ConfigParameter", "Configuration"})
    EXPECT_NE(plat::findLogSrc(name), nullptr) << name;
}

} // namespace
