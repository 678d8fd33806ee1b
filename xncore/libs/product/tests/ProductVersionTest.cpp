#include "product/ProductVersion.h"

#include <gtest/gtest.h>

namespace {

TEST(ProductVersion, IsReplacedOnlyWhenItDiffers) {
  product::setProductVersion("1.0 (r1)", "1.0.0.1");
  const char* display = product::productVersion();
  const char* numeric = product::productBuildVersion();
  EXPECT_STREQ(display, "1.0 (r1)");
  EXPECT_STREQ(numeric, "1.0.0.1");

  // The same texts again keep the stored copies, so pointers handed out stay valid.
  product::setProductVersion("1.0 (r1)", "1.0.0.1");
  EXPECT_EQ(product::productVersion(), display);
  EXPECT_EQ(product::productBuildVersion(), numeric);

  // A change of one replaces that one only.
  product::setProductVersion("1.1 (r2)", "1.0.0.1");
  EXPECT_STREQ(product::productVersion(), "1.1 (r2)");
  EXPECT_EQ(product::productBuildVersion(), numeric);
}

} // namespace
