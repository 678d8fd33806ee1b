// Check boxes and radio groups on the headless binding: the box beside the
// label, the toggle of the user's click, radio groups that keep one member
// set and live as long as their members, perform(), describe(), and checks
// that take no input while disabled, locked or hidden.
#include "EventLog.h"
#include "HeadlessForm.h"

#include "mui/MuCheck.h"
#include "mui/headless/MuCheckHeadless.h"

#include <gmock/gmock.h>

#include <climits>

namespace mui::test {
namespace {

using Checks = HeadlessForm;

MuCheckHeadless* headless(MuCheck* check) {
  return static_cast<MuCheckHeadless*>(check);
}

// The box is 26 units (13 pixels at "ppmm" 4) and half a "0" wide.
TEST_F(Checks, TheBoxStandsBesideTheLabel) {
  MuCheck* check = MuCheck::create(dialog.get(), "save", "Save && quit");
  EXPECT_EQ(check->minWidth(0), 11 * 7 + 13 + 3);
  EXPECT_EQ(check->minHeight(INT_MAX), 16);
  // The label wraps in what the box leaves: seven code points at 16 + 49.
  EXPECT_EQ(check->minHeight(16 + 49), 32);
  // Without a label there is no gap: a column can centre the box.
  check->setLabel("");
  EXPECT_EQ(check->minWidth(0), 13);
  MuStyle bold;
  bold.fontWeight = 700;
  check->setStyle(bold);
  check->setLabel("Deny");
  EXPECT_EQ(check->minWidth(0), 4 * 8 + 13 + 4);
}

// Images replace the box, with 6 units between image and label. At "ppmm" 8
// the images are drawn for double density, 26 pixels square.
TEST_F(Checks, StateImagesReplaceTheBox) {
  ppmmParameter.setInt(8, 10);
  MuCheck* check = MuCheck::create(dialog.get(), "deny", "Deny", MuCheck::Normal, nullptr, "check");
  MuCheck* plain = MuCheck::create(dialog.get(), "allow", "Deny");
  EXPECT_EQ(check->minWidth(0), 28 + 6 + 26);
  EXPECT_EQ(check->minHeight(INT_MAX), 26);
  EXPECT_EQ(plain->minWidth(0), 28 + 26 + 3);
  EXPECT_EQ(plain->minHeight(INT_MAX), 26);
  check->setLabel("");
  EXPECT_EQ(check->minWidth(0), 26);
  EXPECT_EQ(check->imageName(check->state()), plat::String("off-check"));
  check->setIndeterminate();
  EXPECT_EQ(check->imageName(check->state()), plat::String("ind-check"));
  EXPECT_TRUE(plain->imageName(MuCheck::Set).isNull());
}

TEST_F(Checks, AClickTogglesAndSetIndeterminateGivesWay) {
  MuCheck* check = MuCheck::create(dialog.get(), "allow", "&Allow");
  dialog->setVisible(true);
  EventLog log;
  check->addObserver(&log);
  struct Step {
    void (*act)(MuCheck*);
    bool value;
    bool indeterminate;
    bool raises;
  } steps[] = {
      {[](MuCheck* c) { headless(c)->click(); }, true, false, true},
      {[](MuCheck* c) { headless(c)->click(); }, false, false, true},
      {[](MuCheck* c) { c->setIndeterminate(); }, false, true, false},
      {[](MuCheck* c) { headless(c)->click(); }, false, false, true},
      {[](MuCheck* c) { c->setValue(true); }, true, false, false},
      {[](MuCheck* c) { c->setIndeterminate(); }, false, true, false},
      {[](MuCheck* c) { c->perform("click", "1"); }, true, false, true},
      {[](MuCheck* c) { c->perform("click", "1"); }, true, false, true},
      {[](MuCheck* c) { c->perform("click", "0"); }, false, false, true},
  };
  int i = 0;
  for (const Step& step : steps) {
    step.act(check);
    EXPECT_EQ(check->getValue(), step.value) << i;
    EXPECT_EQ(check->isIndeterminate(), step.indeterminate) << i;
    EXPECT_EQ(log.take().size(), step.raises ? 1u : 0u) << i;
    ++i;
  }
  EXPECT_THAT(check->describe().get(),
              testing::EndsWith("label &Allow\nelement Check\ntype Normal\nvalue 0\n"
                                "indeterminate 0\n"));
  EXPECT_STREQ(check->typeName(), "check");
}

TEST_F(Checks, ARadioGroupKeepsTheClickedMemberSet) {
  MuCheck* a = MuCheck::create(dialog.get(), "a", "A", MuCheck::Radio);
  MuCheck* b = MuCheck::create(dialog.get(), "b", "B", MuCheck::Radio, a);
  MuCheck* c = MuCheck::create(dialog.get(), "c", "C", MuCheck::Radio, b);
  ASSERT_NE(a->group(), nullptr);
  EXPECT_EQ(b->group(), a->group());
  EXPECT_THAT(a->group()->members(), testing::ElementsAre(a, b, c));
  dialog->setVisible(true);

  // The group acts before the member's other observers see the event.
  struct Values : MuObserver {
    std::vector<std::string> seen;
    void changed(MuElement* source) override {
      std::string values;
      for (MuCheck* member : static_cast<MuCheck*>(source)->group()->members())
        values += member->getValue() ? '1' : '0';
      seen.push_back(std::string(source->name()) + " " + values);
    }
  } values;
  for (MuCheck* member : {a, b, c})
    member->addObserver(&values);

  headless(b)->click();
  headless(b)->click(); // the user cannot clear a radio
  c->perform("click", "1");
  c->perform("click", "0");
  a->setValue(true); // no event, and no group at work
  EXPECT_THAT(values.seen, testing::ElementsAre("b 010", "b 010", "c 001", "c 001"));
  EXPECT_TRUE(a->getValue());
  EXPECT_TRUE(c->getValue());
  EXPECT_THAT(b->describe().get(), testing::HasSubstr("type Radio\nvalue 0\n"));
}

TEST_F(Checks, GroupsLiveAsLongAsTheirMembers) {
  MuCheck* lone = MuCheck::create(dialog.get(), "lone", "Lone");
  EXPECT_EQ(lone->group(), nullptr);
  EXPECT_EQ(MuCheck::create(dialog.get(), "r", "R", MuCheck::Radio, lone)->group(), nullptr);

  MuCheck* first = MuCheck::create(dialog.get(), "first", "First", MuCheck::Radio);
  MuCheck* second = MuCheck::create(dialog.get(), "second", "Second", MuCheck::Radio, first);
  MuCheck::Group* group = first->group();
  dialog->remove(first);
  EXPECT_THAT(group->members(), testing::ElementsAre(second));
  // The group still works for the member that stayed, and a newcomer joins it.
  MuCheck* third = MuCheck::create(dialog.get(), "third", "Third", MuCheck::Radio, second);
  EXPECT_EQ(third->group(), group);
  dialog->setVisible(true);
  headless(third)->click();
  EXPECT_FALSE(second->getValue());
  // The last member to leave frees the group (the sanitiser build sees a leak otherwise).
  dialog->remove(second);
  dialog->remove(third);
}

TEST_F(Checks, InputIsIgnoredWhileDisabledLockedOrHidden) {
  MuLayout* column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
  MuCheck* check = MuCheck::create(column, "deny", "Deny");
  dialog->setVisible(true);
  EventLog log;
  column->addObserver(&log);
  struct Row {
    const char* state;
    void (*apply)(MuCheck*, MuLayout*, bool);
  } rows[] = {
      {"disabled", [](MuCheck* c, MuLayout*, bool on) { c->setEnabled(!on); }},
      {"locked", [](MuCheck* c, MuLayout*, bool on) { c->setLocked(on); }},
      {"hidden column", [](MuCheck*, MuLayout* l, bool on) { l->setVisible(!on); }},
  };
  for (const Row& r : rows) {
    r.apply(check, column, true);
    EXPECT_FALSE(headless(check)->click()) << r.state;
    EXPECT_FALSE(check->perform("click", "1")) << r.state;
    EXPECT_FALSE(check->getValue()) << r.state;
    r.apply(check, column, false);
  }
  EXPECT_FALSE(check->perform("click", nullptr));
  EXPECT_FALSE(check->perform("toggle", "1"));
  EXPECT_THAT(log.take(), testing::IsEmpty());
  EXPECT_TRUE(check->perform("click", "7"));
  EXPECT_THAT(log.take(), testing::ElementsAre("deny changed"));
}

} // namespace
} // namespace mui::test
