// Who the program is: unset values, the translated display name and the
// registered name.
#include "os/AppInfo.h"

#include "loc/LocaleParameter.h"
#include "loc/Localize.h"

#include <gtest/gtest.h>

namespace {

constexpr loc::CatalogEntry entries[] = {
    {"de", "ostest_app_name_r", "Ostrand\xC2\xAE Rechte"},
    {"en", "ostest_app_name_r", "Ostrand\xC2\xAE Rights"},
};
[[maybe_unused]] const bool registered =
    (loc::Localize::instance().addCatalog(entries, std::size(entries)), true);

TEST(AppInfoDeathTest, UnsetValuesReadEmptyOrAssert) {
  EXPECT_FALSE(os::hasApp());
  EXPECT_STREQ(os::getApp(true), "");
  EXPECT_STREQ(os::getDisplayName(true), "");
  EXPECT_DEATH(os::getApp(false), "emptyIfUnset \\|\\| app");
  EXPECT_DEATH(os::getCompany(false), "emptyIfUnset \\|\\| company");
  EXPECT_DEATH(os::getGroup(false), "emptyIfUnset \\|\\| group");
  EXPECT_DEATH(os::getPathComp(false), "emptyIfUnset \\|\\| pathComp");
  EXPECT_DEATH(os::setAppInfo(nullptr, "Ostrand", "oxn", nullptr, nullptr), "\\ba\\b");
}

TEST(AppInfo, DisplayNameFollowsTheLanguageUntilANameIsSet) {
  loc::Localize::instance().init({});
  os::setAppInfo("rights", "Ostrand", "oxn", nullptr, nullptr);
  EXPECT_TRUE(os::isComplete());
  EXPECT_STREQ(os::getDisplayName(false), "rights");

  os::setAppInfo("rights", "Ostrand", "oxn", "ostest_app_name_r", "Ignored");
  EXPECT_STREQ(os::getDisplayName(false), "Ostrand Rights");
  EXPECT_STREQ(os::getRegisteredName(false), "Ostrand Rights\xC2\xAE");
  loc::localeParameter.setFromString("de_DE", plat::priorityPreference);
  EXPECT_STREQ(os::getDisplayName(false), "Ostrand Rechte");

  os::setDisplayName("Own Name");
  EXPECT_STREQ(os::getDisplayName(false), "Own Name");
  EXPECT_STREQ(os::getRegisteredName(false), "Own Name\xC2\xAE");
  loc::localeParameter.reset(true);
}

} // namespace
