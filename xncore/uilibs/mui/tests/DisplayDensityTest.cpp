#include "mui/DisplayDensity.h"

#include "mui/MuiParameters.h"

#include <gtest/gtest.h>

namespace {

TEST(DisplayDensity, PixelsPerMillimetreFromDotsPerInch) {
  struct Case {
    int dpi;
    int ppmm;
  } cases[] = {{96, 4}, {120, 5}, {144, 6}, {192, 8}, {107, 4}, {108, 5}, {11, 0}, {12, 1}};
  for (const Case& c : cases)
    EXPECT_EQ(mui::ppmmForDpi(c.dpi), c.ppmm) << c.dpi;
}

TEST(DisplayDensity, PpmmDefaultsToTheDisplaysDensityWithinItsRange) {
  EXPECT_EQ(mui::ppmmParameter.getDefault(), plat::String("4"));
  EXPECT_EQ(mui::ppmmParameter.min(), 1);
  EXPECT_EQ(mui::ppmmParameter.max(), 32);
  EXPECT_FALSE(mui::ppmmParameter.setFromString("33", 10));
  EXPECT_FALSE(mui::ppmmParameter.setFromString("0", 10));
  EXPECT_EQ(static_cast<int>(mui::ppmmParameter), mui::ppmmForDpi(mui::primaryDisplayDpi()));
}

TEST(DisplayDensity, TextSizeFactorIsAPercentage) {
  EXPECT_EQ(static_cast<int>(mui::textSizeFactorParameter), 100);
  EXPECT_FALSE(mui::textSizeFactorParameter.setFromString("1001", 10));
  EXPECT_TRUE(mui::textSizeFactorParameter.setFromString("1000", 10));
  EXPECT_EQ(static_cast<int>(mui::textSizeFactorParameter), 1000);
  mui::textSizeFactorParameter.unset(10, false);
}

} // namespace
