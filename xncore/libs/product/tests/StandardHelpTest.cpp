// The help that programs print: the product's full information text, then the group's help or
// its XML document, and the end of the process.
#include "product/StandardHelp.h"

#include "../../../base/plat/tests/Capture.h"

#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/IntParameter.h"
#include "plat/XmlConfig.h"
#include "product/ProductInfo.h"
#include "product/ProductVersion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

class StandardHelp : public testing::Test {
protected:
  StandardHelp() { product::setProductVersion("7.19.0 (r13)", "7.19.0.13"); }

  std::string helpText(int mode) {
    return plattest::captureStream(
        [&](std::FILE* out) { product::writeStandardHelp(mode, group, out); });
  }

  plat::Configuration group{"Help", nullptr};
  plat::BoolParameter plain{"Plain", "Shown always.", false, false, &group};
  plat::IntParameter expert{"Expert", "Shown with all.", 2, true, &group};
};

TEST_F(StandardHelp, EachModeWritesItsTextAndEndsTheProcess) {
  std::string head = std::string(product::fullInfo().get()) + "\n\nParameters can be turned on";
  std::string ordinary = helpText(plat::Configuration::helpPlain);
  std::string all = helpText(plat::Configuration::helpAll);
  EXPECT_EQ(ordinary.rfind(head, 0), 0u);
  EXPECT_EQ(all.rfind(head, 0), 0u);
  EXPECT_EQ(ordinary.find("Expert"), std::string::npos);
  EXPECT_NE(all.find("  Expert         - Shown with all. (default=2)\n"), std::string::npos);

  plain.setFromString("1", 10);
  EXPECT_EQ(helpText(plat::Configuration::helpXml),
            std::string(plat::writeXmlConfig(group, false, false, nullptr).get()));
  for (int mode : {plat::Configuration::helpPlain, plat::Configuration::helpXml})
    EXPECT_EXIT(product::standardHelp(mode, group), testing::ExitedWithCode(0), "") << mode;
}

} // namespace
