#include "rfb/Rect.h"

#include <gtest/gtest.h>

namespace rfb {
namespace {

TEST(Rect, EmptinessAndSize) {
  struct Row {
    Rect rect;
    bool empty;
    Size size;
  };
  const Row rows[] = {
      {{5, 5, 5, 10}, true, {0, 5}},   {{5, 5, 10, 5}, true, {5, 0}},
      {{5, 5, 4, 10}, true, {-1, 5}},  {{0, 0, 1, 1}, false, {1, 1}},
      {{-3, -4, 3, 4}, false, {6, 8}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(toString(row.rect).get());
    EXPECT_EQ(row.rect.isEmpty(), row.empty);
    EXPECT_EQ(row.rect.size(), row.size);
  }
}

TEST(Rect, IntersectionIsEmptyWhenInvertedOnEitherAxis) {
  const Rect a{0, 0, 10, 10};
  EXPECT_EQ(a.intersect({5, 5, 20, 20}), Rect(5, 5, 10, 10));
  EXPECT_EQ(a.intersect({-5, 2, 3, 4}), Rect(0, 2, 3, 4));
  EXPECT_EQ(a.intersect({20, 0, 30, 10}), Rect());
  EXPECT_EQ(a.intersect({0, 20, 10, 30}), Rect());
  // Touching edges meet in an empty, not inverted, rectangle.
  EXPECT_EQ(a.intersect({10, 0, 20, 10}), Rect(10, 0, 10, 10));
}

TEST(Rect, EnclosesAndContains) {
  const Rect a{0, 0, 10, 10};
  EXPECT_TRUE(a.encloses(a));
  EXPECT_TRUE(a.encloses({2, 2, 3, 3}));
  EXPECT_FALSE(a.encloses({2, 2, 11, 3}));
  EXPECT_FALSE(a.encloses({-1, 2, 3, 3}));
  EXPECT_TRUE(a.contains({0, 0}));
  EXPECT_TRUE(a.contains({9, 9}));
  EXPECT_FALSE(a.contains({10, 9}));
}

TEST(Rect, TranslateAndText) {
  const Rect moved = Rect(1, 2, 3, 4).translate({10, -20});
  EXPECT_EQ(moved, Rect(11, -18, 13, -16));
  EXPECT_STREQ(toString(moved).get(), "11,-18 to 13,-16");
  EXPECT_EQ(Rect::at({3, 4}, {5, 6}), Rect(3, 4, 8, 10));
}

} // namespace
} // namespace rfb
