#include "loc/LocaleNames.h"

#include "loc/DefaultLocales.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::string joined(const std::vector<plat::String>& list) {
  std::string text;
  for (const plat::String& name : list)
    text += (text.empty() ? "" : ":") + std::string(name.get());
  return text;
}

TEST(LocaleNames, ParseGivesLanguageAndTerritory) {
  struct Case {
    const char* text;
    const char* defaultLanguage;
    const char* defaultTerritory;
    const char* expected;
  };
  const Case cases[] = {
      {"de", nullptr, nullptr, "de_DE"},
      {"de-AT.UTF-8@euro", nullptr, nullptr, "de_AT"},
      {"pt", nullptr, nullptr, "pt_BR"},
      {"xx", nullptr, nullptr, "xx"},
      {"fr:en", nullptr, nullptr, "fr_FR:en_US"},
      {"zh-Hans", nullptr, nullptr, "zh_Hans"},
      {"C", nullptr, nullptr, "C"},
      {":de_DE::_XX:de:", nullptr, nullptr, "de_DE"}, // empty languages dropped, duplicates skipped
      {"en:fr", "en", "GB", "en_GB:fr_FR"},
  };
  for (const Case& c : cases) {
    std::vector<plat::String> list;
    loc::parseLocaleList(c.text, list, c.defaultLanguage, c.defaultTerritory);
    EXPECT_EQ(joined(list), c.expected) << c.text;
  }
}

TEST(LocaleNames, ExpansionAddsLanguagesAndEnglish) {
  struct Case {
    std::vector<plat::String> list;
    const char* expected;
  };
  const Case cases[] = {
      {{plat::String("fr_FR"), plat::String("de_DE")}, "fr_FR:fr:de_DE:de:en_US:en"},
      {{plat::String("zh_Hans")}, "zh_Hans:zh:en_US:en"},
      {{plat::String("en"), plat::String("zz_ZZ")}, "en:zz_ZZ:zz:en_US"},
      {{}, "en_US:en"},
  };
  for (const Case& c : cases) {
    std::vector<plat::String> expanded;
    loc::expandLocales(c.list, expanded);
    EXPECT_EQ(joined(expanded), c.expected);
  }
}

TEST(LocaleNames, PluralForms) {
  struct Case {
    const char* locale;
    const char* zero;
    const char* one;
    const char* two;
  };
  const Case cases[] = {
      {"fr", "sing", "sing", "many"},    {"fr_CA", "sing", "sing", "many"},
      {"pt", "sing", "sing", "many"},    {"pt_BR", "sing", "sing", "many"},
      {"pt_PT", "many", "sing", "many"}, {"zh_CN", "many", "many", "many"},
      {"ja", "many", "many", "many"},    {"de_DE", "many", "sing", "many"},
  };
  for (const Case& c : cases) {
    EXPECT_STREQ(loc::pluralForm(c.locale, 0), c.zero) << c.locale;
    EXPECT_STREQ(loc::pluralForm(c.locale, 1), c.one) << c.locale;
    EXPECT_STREQ(loc::pluralForm(c.locale, 2), c.two) << c.locale;
  }
}

TEST(LocaleNames, DesktopLocalesComeFromTheLocaleOfMessagesAndTheLanguagePreferences) {
  struct Case {
    loc::LocaleEnvironment environment; // LANGUAGE, LC_ALL, LC_MESSAGES, LANG
    const char* expected;
  };
  for (const Case& c : {
           Case{{nullptr, nullptr, nullptr, nullptr}, ""},
           Case{{nullptr, nullptr, nullptr, "de_DE.UTF-8"}, "de_DE"},
           Case{{nullptr, nullptr, "fr_CA.UTF-8", "de_DE.UTF-8"}, "fr_CA"},
           Case{{nullptr, "es_ES.UTF-8", "fr_FR.UTF-8", "de_DE.UTF-8"}, "es_ES"},
           Case{{nullptr, "", "", "pt"}, "pt_BR"},
           Case{{"zh_CN:de", nullptr, nullptr, "en_GB.UTF-8"}, "zh_CN:de_DE:en_GB"},
           Case{{"de:de_AT", nullptr, nullptr, "de_DE.UTF-8@euro"}, "de_DE:de_AT"},
           // A neutral locale asks for no language, and LANGUAGE is then not read.
           Case{{"de", nullptr, nullptr, "C.UTF-8"}, ""},
           Case{{"de", "POSIX", nullptr, "fr_FR"}, ""},
           Case{{"de", nullptr, "C", "fr_FR"}, ""},
       }) {
    std::vector<plat::String> list;
    loc::appendEnvironmentLocales(c.environment, list);
    EXPECT_EQ(joined(list), c.expected) << (c.environment.language ? c.environment.language : "-")
                                        << " " << (c.environment.lang ? c.environment.lang : "-");
  }
}

} // namespace
