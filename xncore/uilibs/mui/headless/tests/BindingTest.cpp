// What the headless peers do on their own: the recorded calls, focus that
// moves on when its holder is disabled, and the hooks of the binding.
#include "../../tests/HeadlessForm.h"

#include <gmock/gmock.h>

namespace mui::test {
namespace {

using HeadlessBinding = HeadlessForm;

TEST_F(HeadlessBinding, PeersStartAsNativeWindowsDoAndRecordWhatChanges) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  TextLeaf* leaf = TextLeaf::create(column, "leaf", "Leaf");
  auto* peer = leaf->peer();
  EXPECT_TRUE(peer->isVisible());
  EXPECT_FALSE(MuCommonHeadless::of(dialog.get())->isVisible());
  EXPECT_EQ(peer->getSize(), Size(1, 1));
  EXPECT_EQ(peer->getPosition(), Point(0, 0));
  EXPECT_TRUE(peer->calls().empty());

  leaf->setToolTip("Tip");
  leaf->setToolTip(nullptr);
  leaf->setPosition({2, 3});
  leaf->setSize({4, 5});
  leaf->invalidate({0, 0, 4, 5});
  leaf->scrollIntoView({1, 1, 2, 2});
  leaf->setEnabled(false);
  EXPECT_THAT(peer->calls(),
              testing::ElementsAre("setToolTip Tip", "setToolTip (null)", "setPosition 2,3",
                                   "setSize 4,5", "invalidate 0,0,4,5", "scrollIntoView 1,1,2,2",
                                   "setEnabled 0"));
  EXPECT_EQ(peer->toolTip(), nullptr);
}

TEST_F(HeadlessBinding, DisablingTheFocusedPeerMovesTheFocusOn) {
  MuLayout* column = MuLayout::create(dialog.get(), "c", MuLayout::Vertical);
  TextLeaf* first = TextLeaf::create(column, "first", "1");
  TextLeaf* hidden = TextLeaf::create(column, "hidden", "2");
  TextLeaf* third = TextLeaf::create(column, "third", "3");
  hidden->setVisible(false);
  dialog->setVisible(true);
  first->setFocus();
  ASSERT_TRUE(first->hasFocus());
  first->setEnabled(false);
  EXPECT_FALSE(first->hasFocus());
  EXPECT_TRUE(third->hasFocus()); // the hidden one is passed over
  third->setLocked(true);
  EXPECT_EQ(MuCommonHeadless::focused(), nullptr); // nothing else can take it
  first->setFocus();
  EXPECT_EQ(MuCommonHeadless::focused(), nullptr); // a disabled peer doesn't take it
}

TEST_F(HeadlessBinding, TheFocusGoesWithItsHolder) {
  TextLeaf* leaf = TextLeaf::create(dialog.get(), "leaf", "1");
  dialog->setVisible(true);
  leaf->setFocus();
  dialog->removeChild(leaf);
  EXPECT_EQ(MuCommonHeadless::focused(), nullptr);
}

TEST_F(HeadlessBinding, LeavesMeasureTheirTextInTheirEffectiveStyle) {
  TextLeaf* leaf = TextLeaf::create(dialog.get(), "leaf", "abcd efgh");
  EXPECT_EQ(leaf->minWidth(0), 63);
  EXPECT_EQ(leaf->minHeight(35), 32);
  dialog->setFontSize(240);
  EXPECT_EQ(leaf->minWidth(0), 9 * 14);
  EXPECT_EQ(leaf->minHeight(INT_MAX), 32);
  EXPECT_EQ(leaf->minHeight(0), 0);
}

} // namespace
} // namespace mui::test
