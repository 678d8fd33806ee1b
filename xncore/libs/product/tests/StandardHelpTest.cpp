#include "product/StandardHelp.h"

#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/IntParameter.h"
#include "plat/XmlConfig.h"
#include "product/ProductVersion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <string>

namespace {

std::string helpText(int mode, const plat::Configuration& group) {
  std::FILE* stream = std::tmpfile();
  product::writeStandardHelp(mode, group, stream);
  std::string text;
  std::rewind(stream);
  char buffer[4096];
  for (std::size_t got; (got = std::fread(buffer, 1, sizeof buffer, stream)) > 0;)
    text.append(buffer, got);
  std::fclose(stream);
  return text;
}

class StandardHelp : public testing::Test {
protected:
  StandardHelp() { product::setProductVersion("7.19.0 (r13)", "7.19.0.13"); }

  plat::Configuration group{"Help", nullptr};
  plat::BoolParameter plain{"Plain", "Shown always.", false, false, &group};
  plat::IntParameter expert{"Expert", "Shown with all.", 2, true, &group};
};

TEST_F(StandardHelp, VersionLineNamesProductVersionAndBuild) {
  std::string line = product::versionLine().get();
  EXPECT_THAT(line,
              testing::MatchesRegex(
                  "oxnpermissionscreator 7\\.19\\.0 \\(r13\\) x64 \\([A-Z][a-z]{2} [0-9]{1,2} "
                  "[0-9]{4} [0-9]{2}:[0-9]{2}:[0-9]{2}\\)"));
  EXPECT_EQ(line.find("  "), std::string::npos);

  product::setProductVersion(nullptr, nullptr);
  EXPECT_THAT(std::string(product::versionLine().get()),
              testing::StartsWith("oxnpermissionscreator 0.1 x64 ("));
}

TEST_F(StandardHelp, TextModesStartWithTheVersionAndAnEmptyLine) {
  std::string head = std::string(product::versionLine().get()) + "\n\nParameters can be turned on";
  std::string ordinary = helpText(plat::Configuration::helpPlain, group);
  std::string all = helpText(plat::Configuration::helpAll, group);
  EXPECT_EQ(ordinary.rfind(head, 0), 0u);
  EXPECT_EQ(all.rfind(head, 0), 0u);
  EXPECT_NE(ordinary.find("  Plain          - Shown always. (default=0)\n"), std::string::npos);
  EXPECT_EQ(ordinary.find("Expert"), std::string::npos);
  EXPECT_NE(all.find("  Expert         - Shown with all. (default=2)\n"), std::string::npos);
  EXPECT_NE(all.find("\nLog names:\n"), std::string::npos);
}

TEST_F(StandardHelp, XmlModeWritesTheGroupAsADocument) {
  plain.setFromString("1", 10);
  std::string xml = helpText(plat::Configuration::helpXml, group);
  EXPECT_EQ(xml, std::string(plat::writeXmlConfig(group, false, false, nullptr).get()));
  EXPECT_NE(xml.find("<value data=\"1\" priority=\"10\"/>"), std::string::npos);
}

TEST_F(StandardHelp, EndsTheProcessWithSuccess) {
  EXPECT_EXIT(product::standardHelp(plat::Configuration::helpPlain, group),
              testing::ExitedWithCode(0), "");
  EXPECT_EXIT(product::standardHelp(plat::Configuration::helpXml, group),
              testing::ExitedWithCode(0), "");
}

} // namespace
