#include "loc/Localize.h"

#include "loc/LocaleParameter.h"
#include "plat/tests/Capture.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <string>
#include <thread>

namespace {

// Texts of this test only, registered as a generated catalog would register them.
constexpr loc::CatalogEntry entries[] = {
    {"de", "loctest_both", "Beide"},
    {"en", "loctest_both", "Both"},
    {"en", "loctest_en_only", "English only"},
    {"en", "loctest_files_many", "%D files"},
    {"en", "loctest_files_sing", "%D file"},
    {"en", "loctest_mixed", "mixed %S"},
    {"en", "loctest_percent", "100%%"},
    {"en", "loctest_replaced", "compiled in %S"},
    {"fr", "loctest_files_many", "%D fichiers"},
    {"fr", "loctest_files_sing", "%D fichier"},
    {"pt", "loctest_files_many", "%D arquivos"},
    {"pt", "loctest_files_sing", "%D arquivo"},
};
[[maybe_unused]] const bool registered =
    (loc::Localize::instance().addCatalog(entries, std::size(entries)), true);

const char* text(const char* key) {
  return loc::get(key, "here.cpp", 12, false);
}

std::string processLocales() {
  std::string joined;
  for (const plat::String& locale : loc::TransMap::process().locales())
    joined += (joined.empty() ? "" : ":") + std::string(locale.get());
  return joined;
}

class Localize : public ::testing::Test {
protected:
  void SetUp() override { loc::Localize::instance().init({}); }
  void TearDown() override { loc::localeParameter.reset(true); }
  static void useLocale(const char* value) {
    loc::localeParameter.setFromString(value, plat::priorityPreference);
  }
};

TEST_F(Localize, FirstLocaleWithTheKeyAnswersAndAMissingKeyIsLogged) {
  useLocale("de_DE");
  EXPECT_STREQ(text("loctest_both"), "Beide");
  EXPECT_STREQ(text("loctest_en_only"), "English only");
  plattest::LogCapture capture;
  EXPECT_EQ(loc::getOptional("loctest_nowhere", false), nullptr);
  EXPECT_STREQ(text("loctest_nowhere"), "loctest_nowhere");
  EXPECT_EQ(
      capture.lines("Localize"),
      std::vector<std::string>{"0 Missing translation for \"loctest_nowhere\" (here.cpp:12)"});
}

TEST_F(Localize, LocaleChangeRebuildsAndHandedOutTextsStayValid) {
  useLocale("de_DE");
  const char* german = text("loctest_both");
  plattest::LogCapture capture;
  useLocale("fr");
  EXPECT_EQ(processLocales(), "fr_FR:fr:en_US:en");
  EXPECT_EQ(loc::Localize::instance().localeList(), plat::String("fr_FR:en_US"));
  EXPECT_EQ(
      capture.lines("Localize"),
      (std::vector<std::string>{"110 Updating process TransMap with locales:", "110  fr_FR",
                                "110  fr", "110  en_US", "110  en", "30 Locales fr_FR:en_US"}));
  EXPECT_STREQ(text("loctest_both"), "Both");
  EXPECT_STREQ(german, "Beide");
  useLocale("zz_ZZ");
  EXPECT_EQ(processLocales(), "zz_ZZ:zz:en_US:en");
  EXPECT_STREQ(text("loctest_both"), "Both");
}

TEST_F(Localize, PlainTextIsNormalisedOnce) {
  const char* first = text("loctest_percent");
  EXPECT_STREQ(first, "100%");
  EXPECT_EQ(text("loctest_percent"), first);
}

TEST_F(Localize, PluralFormFollowsTheLocale) {
  struct Case {
    const char* locale;
    int count;
    const char* expected;
  };
  const Case cases[] = {
      {"fr", 0, "%D fichier"},    {"fr", 2, "%D fichiers"}, {"pt_PT", 0, "%D arquivos"},
      {"pt_BR", 0, "%D arquivo"}, {"de_DE", 1, "%D file"},  {"de_DE", 0, "%D files"},
  };
  for (const Case& c : cases) {
    useLocale(c.locale);
    EXPECT_STREQ(loc::getPlural("loctest_files", c.count, nullptr, 0), c.expected) << c.locale;
  }
  plattest::LogCapture capture;
  EXPECT_STREQ(loc::getPlural("loctest_none", 1, nullptr, 0), "loctest_none");
  EXPECT_EQ(capture.lines("Localize"),
            std::vector<std::string>{"0 Missing plural translation for \"loctest_none\""});
}

TEST_F(Localize, FirstRegistrationStandsAndStringFilesReplace) {
  loc::Localize& localize = loc::Localize::instance();
  localize.add("en", "loctest_both", "Other");
  EXPECT_STREQ(text("loctest_both"), "Both");
  EXPECT_STREQ(loc::get("loctest_replaced", nullptr, 0, true), "compiled in %S");
  // A replaced text may be read the other way, and new keys are found at once.
  localize.addFromFile("en", "loctest_replaced", "from a file 50%%");
  localize.addFromFile("en", "loctest_file_only", "only in a file");
  EXPECT_STREQ(text("loctest_replaced"), "from a file 50%");
  EXPECT_STREQ(text("loctest_file_only"), "only in a file");
}

TEST_F(Localize, ThreadMapOverridesTheProcessMapOnItsThread) {
  std::thread worker([] {
    {
      loc::TransMap map;
      loc::Localize::instance().useLocales({plat::String("de_DE")}, nullptr);
      for (int round = 0; round < 200; ++round)
        EXPECT_STREQ(text("loctest_both"), "Beide");
    }
    EXPECT_STREQ(text("loctest_both"), "Both");
  });
  for (int round = 0; round < 50; ++round) {
    useLocale(round % 2 ? "fr_FR" : "zz");
    EXPECT_STREQ(text("loctest_both"), "Both");
  }
  worker.join();
}

using LocalizeDeathTest = Localize;

TEST_F(LocalizeDeathTest, MisuseEndsTheProcess) {
  EXPECT_DEATH(
      {
        loc::get("loctest_mixed", nullptr, 0, true);
        text("loctest_mixed");
      },
      "Can't use same string as both raw and formatted - loctest_mixed");
  EXPECT_DEATH(loc::Localize::instance().add("en", "loctest_bad", "\xC3("),
               "Bad UTF-8 in loctest_bad");
  EXPECT_DEATH(
      {
        auto* outer = new loc::TransMap;
        new loc::TransMap;
        delete outer;
      },
      "thrInst == this");
  EXPECT_DEATH(
      {
        loc::Localize::setAbortOnBadTranslation(true);
        text("loctest_nowhere");
      },
      "Missing translation for \"loctest_nowhere\" \\(here.cpp:12\\)\nAborting");
}

TEST_F(Localize, AnEmptyLocaleTakesTheDesktopsLanguagesThenEnglish) {
  ASSERT_EQ(setenv("LANGUAGE", "fr", 1), 0);
  ASSERT_EQ(setenv("LANG", "de_DE.UTF-8", 1), 0);
  loc::Localize::instance().update();
  EXPECT_EQ(std::string(loc::Localize::instance().localeList().get()), "fr_FR:de_DE:en_US");
  EXPECT_EQ(processLocales(), "fr_FR:fr:de_DE:de:en_US:en");

  // A locale chosen for the program stands over the desktop's.
  useLocale("es_ES");
  EXPECT_EQ(std::string(loc::Localize::instance().localeList().get()), "es_ES:en_US");
}

} // namespace
