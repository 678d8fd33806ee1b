// The user's languages from the environment, for an empty "Locale".
#include "loc/DefaultLocales.h"

#include "loc/LocaleParameter.h"
#include "loc/Localize.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <string>

namespace {

std::string joined(const std::vector<plat::String>& list) {
  std::string text;
  for (const plat::String& locale : list)
    text += (text.empty() ? "" : ":") + std::string(locale.get());
  return text;
}

TEST(DefaultLocales, ComeFromTheLocaleOfMessagesAndTheLanguagePreferences) {
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

TEST(DefaultLocales, AnEmptyLocaleParameterTakesTheUsersLanguagesThenEnglish) {
  ASSERT_EQ(setenv("LANGUAGE", "fr", 1), 0);
  ASSERT_EQ(setenv("LANG", "de_DE.UTF-8", 1), 0);
  loc::Localize::instance().init({});
  EXPECT_EQ(std::string(loc::Localize::instance().localeList().get()), "fr_FR:de_DE:en_US");
  EXPECT_EQ(joined(loc::TransMap::process().locales()), "fr_FR:fr:de_DE:de:en_US:en");

  // A locale chosen for the program stands over the desktop's.
  loc::localeParameter.setFromString("es_ES", plat::priorityPreference);
  EXPECT_EQ(std::string(loc::Localize::instance().localeList().get()), "es_ES:en_US");
  loc::localeParameter.reset(true);
}

} // namespace
