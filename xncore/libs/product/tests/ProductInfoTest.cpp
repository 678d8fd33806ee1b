// The texts that describe the product: built from the display name, the
// version and the catalog's legal lines, in the language in force.
#include "product/ProductInfo.h"

#include "loc/LocaleParameter.h"
#include "loc/Localize.h"
#include "os/AppInfo.h"
#include "product/ProductVersion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

// A display name in two languages, and a language "xx" whose legal lines
// need escaping in markup.
constexpr loc::CatalogEntry entries[] = {
    {"de", "producttest_name", "Werkzeug\xC2\xAE Macher  "},
    {"en", "producttest_name", "Tool\xC2\xAE Maker"},
    {"xx", "product_copyright", "Copyright \xC2\xA9 A & B <C>"},
    {"xx", "product_trademarks", "Tool\xE2\x84\xA2 is a mark"},
};
[[maybe_unused]] const bool registered =
    (loc::Localize::instance().addCatalog(entries, std::size(entries)), true);

constexpr const char* address = "https://www.ostrand.example/docs/7/foss.html";
constexpr const char* dateRegex = "[A-Z][a-z]{2} [0-9]{1,2} [0-9]{4} [0-9]{2}:[0-9]{2}:[0-9]{2}";

class ProductInfo : public testing::Test {
protected:
  ProductInfo() {
    loc::Localize::instance().init({});
    os::setAppInfo("tool", "Ostrand", "oxn", "producttest_name", nullptr);
    product::setProductVersion("7.19.0 (r13)", "7.19.0.13");
    useLocale("en_US");
  }
  ~ProductInfo() override { loc::localeParameter.reset(true); }

  // A change of "Locale" rebuilds the texts.
  static void useLocale(const char* locale) {
    product::startProductTexts();
    loc::localeParameter.setFromString(locale, plat::priorityPreference);
  }
};

TEST_F(ProductInfo, VersionLineNamesTheProductInTheLanguageInForce) {
  EXPECT_THAT(
      product::versionLine().get(),
      MatchesRegex(std::string("Tool Maker 7\\.19\\.0 \\(r13\\) x64 \\(") + dateRegex + "\\)"));
  useLocale("de_DE");
  // No double blank, though the name ends in two.
  EXPECT_THAT(product::versionLine().get(),
              MatchesRegex(std::string("Werkzeug Macher 7\\.19\\.0 \\(r13\\) x64 \\(") + dateRegex +
                           "\\)"));

  product::setProductVersion(nullptr, nullptr);
  useLocale("en_US");
  EXPECT_THAT(product::versionLine().get(), StartsWith("Tool Maker 0.1 x64 ("));
}

TEST_F(ProductInfo, DocumentationAddressKeepsTheMajorVersionOfTheFirstBuild) {
  EXPECT_STREQ(product::documentationAddress().get(), address);
  product::setProductVersion("12.0", "12.0.1.5");
  useLocale("de_DE");
  EXPECT_STREQ(product::documentationAddress().get(), address);
  EXPECT_THAT(product::fullInfo().get(), HasSubstr(address));
  EXPECT_THAT(product::versionLine().get(), HasSubstr(" 12.0 x64 "));
}

TEST_F(ProductInfo, AboutTextEscapesTheLegalLinesAndLinksTheDocumentation) {
  EXPECT_EQ(std::string(product::aboutText().get()),
            std::string("<div>Copyright \xC2\xA9 Ostrand. All rights reserved.</div>"
                        "<div>Ostrand\xC2\xAE is a registered trademark of Ostrand.</div>"
                        "<div>Parts of this software are protected by patents or pending patent "
                        "applications.</div>"
                        "<div>Licences and acknowledgements of third-party software: <a href=\"") +
                address + "\">" + address + "</a></div>");
  useLocale("xx_XX");
  EXPECT_THAT(product::aboutText().get(),
              StartsWith("<div>Copyright \xC2\xA9 A &amp; B &lt;C&gt;</div>"
                         "<div>Tool\xE2\x84\xA2 is a mark</div>"));
}

TEST_F(ProductInfo, FullInfoIsPlainTextWithinSeventyNineColumns) {
  useLocale("xx_XX");
  std::string full = product::fullInfo().get();
  EXPECT_THAT(full, StartsWith(std::string(product::versionLine().get()) +
                               "\nCopyright (C) A & B <C>\nTool(TM) is a mark\n"));
  EXPECT_THAT(full, HasSubstr(std::string("\n") + address + "\n"));
  std::string os = product::osLine().get();
  EXPECT_THAT(os, MatchesRegex("OS: .+, (x64|ARM64|WOW64)"));
  EXPECT_THAT(full, testing::EndsWith("\n" + os));
  for (const char* mark : {"\xC2\xA9", "\xC2\xAE", "\xE2\x84\xA2"})
    EXPECT_THAT(full, Not(HasSubstr(mark)));

  useLocale("en_US");
  full = product::fullInfo().get();
  EXPECT_THAT(full, HasSubstr("\nOstrand(R) is a registered trademark of Ostrand.\n"));
  std::istringstream lines(full);
  int count = 0;
  for (std::string line; std::getline(lines, line); ++count)
    EXPECT_LE(line.size(), 79u) << line;
  // The acknowledgements' introduction is longer than a line, and wraps.
  EXPECT_GT(count, 8);
}

} // namespace
