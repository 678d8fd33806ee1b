#include "rfb/Region.h"

#include "rfb/RegionIterator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <utility>
#include <vector>

namespace rfb {
namespace {

using Pixels = std::set<std::pair<int, int>>;

Pixels pixelsOf(const Region& region) {
  Pixels pixels;
  for (int i = 0; i < region.numRects(); ++i) {
    const RgnRect& r = region.rects()[i];
    for (int y = r.y1; y < r.y2; ++y)
      for (int x = r.x1; x < r.x2; ++x)
        pixels.insert({x, y});
  }
  return pixels;
}

// The banded form: bands sorted and disjoint, spans sorted and not touching,
// equal neighbouring bands merged, extents the bounding box.
void expectCanonical(const Region& region) {
  const RgnRect* r = region.rects();
  const int n = region.numRects();
  std::vector<std::vector<RgnRect>> bands;
  for (int i = 0; i < n; ++i) {
    ASSERT_FALSE(r[i].isEmpty());
    if (i == 0 || r[i].y1 != r[i - 1].y1)
      bands.emplace_back();
    bands.back().push_back(r[i]);
  }
  RgnRect box = n ? r[0] : RgnRect();
  for (std::size_t b = 0; b < bands.size(); ++b) {
    const std::vector<RgnRect>& band = bands[b];
    for (std::size_t i = 0; i < band.size(); ++i) {
      ASSERT_EQ(band[i].y2, band[0].y2);
      if (i > 0) {
        ASSERT_GT(band[i].x1, band[i - 1].x2) << "touching spans";
      }
      box = RgnRect(std::min(box.x1, band[i].x1), box.y1, std::max(box.x2, band[i].x2), band[i].y2);
    }
    if (b == 0)
      continue;
    const std::vector<RgnRect>& above = bands[b - 1];
    ASSERT_GE(band[0].y1, above[0].y2);
    const bool sameSpans =
        std::equal(band.begin(), band.end(), above.begin(), above.end(),
                   [](const RgnRect& p, const RgnRect& q) { return p.x1 == q.x1 && p.x2 == q.x2; });
    ASSERT_FALSE(band[0].y1 == above[0].y2 && sameSpans) << "unmerged band";
  }
  EXPECT_EQ(region.extents(), box);
}

Region randomRegion(std::mt19937& random) {
  std::uniform_int_distribution<int> coordinate(0, 12);
  Region region;
  const int count = std::uniform_int_distribution<int>(0, 4)(random);
  for (int i = 0; i < count; ++i) {
    const int x = coordinate(random), y = coordinate(random);
    region = region.unionWith(
        Region(Rect(x, y, x + coordinate(random) / 2 + 1, y + coordinate(random) / 2 + 1)));
  }
  return region;
}

TEST(Region, SetOperationsMatchPixelSetsAndStayBanded) {
  std::mt19937 random(7);
  for (int round = 0; round < 400; ++round) {
    const Region a = randomRegion(random);
    const Region b = randomRegion(random);
    const Pixels pa = pixelsOf(a), pb = pixelsOf(b);
    Pixels both, either = pa, onlyA;
    either.insert(pb.begin(), pb.end());
    for (const auto& p : pa)
      (pb.count(p) ? both : onlyA).insert(p);

    const struct {
      Region result;
      const Pixels& expected;
    } cases[] = {{a.unionWith(b), either}, {a.intersection(b), both}, {a.difference(b), onlyA}};
    for (const auto& c : cases) {
      expectCanonical(c.result);
      ASSERT_EQ(pixelsOf(c.result), c.expected) << "round " << round;
    }
    // The canonical form makes equal sets compare equal whatever their history.
    EXPECT_EQ(a.unionWith(b), b.unionWith(a));
    EXPECT_EQ(a.difference(b).unionWith(a.intersection(b)), a);
  }
}

TEST(Region, EmptyAndSingleRectangle) {
  EXPECT_TRUE(Region(RgnRect(5, 5, 5, 10)).isEmpty());
  EXPECT_TRUE(Region(RgnRect(5, 5, 2, 10)).isEmpty());
  EXPECT_EQ(Region(RgnRect(5, 5, 2, 10)).extents(), RgnRect());

  const Region one(RgnRect(1, 2, 3, 4));
  ASSERT_EQ(one.numRects(), 1);
  EXPECT_EQ(one.rects()[0], RgnRect(1, 2, 3, 4));

  // Copies, moves and operations that end empty all release cleanly.
  Region many = one.unionWith(Region(Rect(10, 2, 12, 4)));
  Region copy = many;
  Region moved = std::move(many);
  EXPECT_EQ(copy, moved);
  copy = one.difference(one);
  EXPECT_TRUE(copy.isEmpty());
  copy = moved;
  EXPECT_EQ(copy.numRects(), 2);
}

TEST(Region, TranslateMovesAndCutsAtTheCoordinateRange) {
  Region region = Region(Rect(0, 0, 4, 4)).unionWith(Region(Rect(10, 0, 14, 8)));
  region.translate({5, -3});
  EXPECT_EQ(region, Region(Rect(5, -3, 9, 1)).unionWith(Region(Rect(15, -3, 19, 5))));

  region.translate({32760, 0});
  EXPECT_EQ(region, Region(Rect(32765, -3, 32767, 1)));
}

TEST(Region, RectangleCoordinatesClampToSixteenBits) {
  const Rect big(0, 0, 40000, 10);
  EXPECT_EQ(RgnRect(big), RgnRect(0, 0, 32767, 10));
  EXPECT_NE(Rect(RgnRect(big)), big);
  EXPECT_EQ(RgnRect(Rect(-40000, -5, 7, 8)), RgnRect(-32768, -5, 7, 8));
  const Rect fits(-32768, -1, 32767, 1);
  EXPECT_EQ(Rect(RgnRect(fits)), fits);
}

std::vector<Rect> visit(const Region& region, Point direction) {
  std::vector<Rect> order;
  RegionIterator it(region, direction);
  for (Rect r; it.next(r);)
    order.push_back(r);
  return order;
}

TEST(RegionIterator, OrderFollowsTheDirection) {
  const Rect left(0, 0, 2, 2), right(5, 0, 7, 2);
  const Rect lowLeft(0, 5, 2, 9), lowRight(5, 5, 7, 9);
  const Region band = Region(left).unionWith(Region(right));
  const Region bands = band.unionWith(Region(lowLeft)).unionWith(Region(lowRight));
  ASSERT_EQ(bands.numRects(), 4);

  const struct {
    const Region& region;
    Point direction;
    std::vector<Rect> expected;
  } cases[] = {
      {band, {-1, 0}, {right, left}},
      {band, {1, 0}, {left, right}},
      {band, {0, 0}, {left, right}},
      {bands, {0, -1}, {lowRight, lowLeft, right, left}},
      {bands, {0, 1}, {left, right, lowLeft, lowRight}},
      {bands, {1, -1}, {lowLeft, lowRight, left, right}},
      {bands, {-1, 1}, {right, left, lowRight, lowLeft}},
      {bands, {-3, -3}, {lowRight, lowLeft, right, left}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.direction.x << "," << c.direction.y);
    EXPECT_EQ(visit(c.region, c.direction), c.expected);
  }
  EXPECT_EQ(visit(Region(left), {-1, -1}), std::vector<Rect>{left});
  EXPECT_TRUE(visit(Region(), {1, 1}).empty());
}

} // namespace
} // namespace rfb
