// Units (eighths of a millimetre) to pixels and back, at several densities,
// with the rounding at the edges; the metrics follow the density of the root.
#include "mui/Mui.h"
#include "mui/MuiParameters.h"

#include <gtest/gtest.h>

namespace mui {
namespace {

class Units : public testing::Test {
protected:
  void TearDown() override {
    ppmmParameter.unset(10, false);
    textSizeFactorParameter.unset(10, false);
  }
  static void set(int ppmm, int factor) {
    ASSERT_TRUE(ppmmParameter.setInt(ppmm, 10));
    ASSERT_TRUE(textSizeFactorParameter.setInt(factor, 10));
  }
};

TEST_F(Units, ToPixelsRoundsHalfAwayFromZero) {
  struct Row {
    int ppmm;
    int units;
    int pixels;
  } rows[] = {
      {4, 0, 0},     {4, 1, 1},   {4, -1, -1},   {4, 20, 10},     {4, 3, 2},   {4, -3, -2},
      {4, 2, 1},     {4, -2, -1}, {5, 1, 1},     {5, 2, 1},       {5, 3, 2},   {5, -2, -1},
      {5, -3, -2},   {1, 3, 0},   {1, 4, 1},     {1, -3, 0},      {1, -4, -1}, {8, 13, 13},
      {8, -13, -13}, {32, 1, 4},  {6, 150, 113}, {6, -150, -113},
  };
  for (const Row& row : rows) {
    set(row.ppmm, 100);
    EXPECT_EQ(Mui::toPixels(row.units), row.pixels) << row.ppmm << " " << row.units;
  }
}

TEST_F(Units, TextSizesScaleByTheFactorFirstTruncatingTowardZero) {
  struct Row {
    int ppmm;
    int factor;
    int units;
    int pixels;
  } rows[] = {
      {4, 100, 950, 475}, {4, 150, 10, 8}, {4, 150, -3, -2},   {4, 1, 99, 0},
      {4, 1000, 1, 5},    {8, 125, 3, 3},  {5, 200, 100, 125},
  };
  for (const Row& row : rows) {
    set(row.ppmm, row.factor);
    EXPECT_EQ(Mui::textToPixels(row.units), row.pixels)
        << row.ppmm << " " << row.factor << " " << row.units;
  }
}

TEST_F(Units, BackToTheNearestUnit) {
  struct Row {
    int ppmm;
    int factor;
    int pixels;
    int units;
    int textUnits;
  } rows[] = {
      {4, 100, 10, 20, 20}, {4, 100, 1, 2, 2}, {5, 100, 1, 2, 2},    {5, 100, -1, -2, -2},
      {3, 100, 1, 3, 3},    {3, 100, 2, 5, 5}, {4, 150, 15, 30, 20}, {8, 200, 7, 7, 4},
  };
  for (const Row& row : rows) {
    set(row.ppmm, row.factor);
    EXPECT_EQ(Mui::toUnits(row.pixels), row.units) << row.ppmm << " " << row.pixels;
    EXPECT_EQ(Mui::textToUnits(row.pixels), row.textUnits) << row.ppmm << " " << row.pixels;
  }
  // Where units are finer than pixels, whole pixels survive the trip.
  for (int ppmm = 1; ppmm <= 8; ++ppmm) {
    set(ppmm, 100);
    for (int pixels = -50; pixels <= 50; ++pixels)
      ASSERT_EQ(Mui::toPixels(Mui::toUnits(pixels)), pixels) << ppmm << " " << pixels;
  }
}

TEST_F(Units, MetricsAreConvertedWhenTheRootIsMadeAndWhenReplaced) {
  set(4, 100);
  Mui atFour;
  EXPECT_EQ(Mui::metric(MetricSpacing), 8);
  EXPECT_EQ(Mui::metric(MetricButtonWidth), 68);
  set(8, 100);
  EXPECT_EQ(Mui::metric(MetricSpacing), 8); // not again until asked
  const int native[MetricCount] = {16, 8, 22, 22, 46, 150, 32, 32};
  Mui::setMetrics(native);
  EXPECT_EQ(Mui::metric(MetricDialogMargin), 22);
  EXPECT_EQ(Mui::metricUnits(MetricControlHeight), 46);
  const int builtIn[MetricCount] = {16, 8, 16, 16, 48, 136, 32, 40};
  Mui::setMetrics(builtIn);
}

} // namespace
} // namespace mui
