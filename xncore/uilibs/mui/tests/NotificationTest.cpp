// How events travel: observers in order of adding, then the ancestors' up to
// the dialog, the default dispatch of each code, and the re-entrancy rules
// that let an observer remove observers or delete the element notifying it.
#include "HeadlessForm.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace mui::test {
namespace {

std::vector<std::string> heard;

// Records every call of the observer interface under its own name.
class Recorder : public MuObserver {
public:
  explicit Recorder(std::string name) : name_(std::move(name)) {}

  void handleEvent(MuElement* source, int event) override {
    heard.push_back(name_ + " event " + std::to_string(event) + " from " + nameOf(source));
    if (onEvent)
      onEvent();
    MuObserver::handleEvent(source, event);
  }
  void clicked(MuElement* source) override {
    heard.push_back(name_ + " clicked " + nameOf(source));
  }
  void changed(MuElement* source) override {
    heard.push_back(name_ + " changed " + nameOf(source));
  }
  void dialogClosed(MuDialog* dialog) override {
    heard.push_back(name_ + " closed " + nameOf(dialog));
  }
  void dialogResized(MuDialog* dialog) override {
    heard.push_back(name_ + " resized " + nameOf(dialog));
  }

  std::function<void()> onEvent;

private:
  static std::string nameOf(MuElement* element) { return element->name() ? element->name() : "?"; }
  std::string name_;
};

class Notification : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    heard.clear();
    column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
    leaf = TextLeaf::create(column, "leaf", "Leaf");
  }

  MuLayout* column = nullptr;
  TextLeaf* leaf = nullptr;
};

TEST_F(Notification, DefaultDispatchOfEveryEventCode) {
  MuObserver plain;
  Recorder recorder("r");
  leaf->addObserver(&recorder);
  struct Row {
    int event;
    const char* delivered; // what the default dispatch adds after handleEvent, or null
  } rows[] = {
      {EventChanged, "r changed leaf"}, {EventClicked, "r clicked leaf"},
      {EventActivated, nullptr},        {EventClosed, "r closed form"},
      {EventWindowActive, nullptr},     {EventWindowInactive, nullptr},
      {EventResized, "r resized form"}, {EventThemeChanged, nullptr},
  };
  for (const Row& row : rows) {
    heard.clear();
    leaf->notify(leaf, row.event);
    std::vector<std::string> expected{"r event " + std::to_string(row.event) + " from leaf"};
    if (row.delivered)
      expected.push_back(row.delivered);
    EXPECT_EQ(heard, expected) << row.event;
    plain.handleEvent(leaf, row.event); // the base's own operations do nothing
  }
}

TEST_F(Notification, ObserversRunInOrderOfAddingThenTheAncestorsUpToTheDialog) {
  Recorder a("a"), b("b"), up("column"), top("dialog");
  leaf->addObserver(&a);
  leaf->addObserver(&b);
  leaf->addObserver(&a); // added twice, told twice
  column->addObserver(&up);
  dialog->addObserver(&top);
  leaf->notify(leaf, EventActivated);
  EXPECT_THAT(heard, testing::ElementsAre("a event 2 from leaf", "b event 2 from leaf",
                                          "a event 2 from leaf", "column event 2 from leaf",
                                          "dialog event 2 from leaf"));
  heard.clear();
  leaf->removeObserver(&a); // every match goes
  leaf->notify(leaf, EventActivated);
  EXPECT_THAT(heard, testing::ElementsAre("b event 2 from leaf", "column event 2 from leaf",
                                          "dialog event 2 from leaf"));
}

TEST_F(Notification, AnObserverThatDeletesTheElementEndsTheDelivery) {
  Recorder killer("killer"), later("later"), up("column");
  killer.onEvent = [this] { column->remove(leaf); };
  leaf->addObserver(&killer);
  leaf->addObserver(&later);
  column->addObserver(&up);
  leaf->notify(leaf, EventActivated);
  EXPECT_THAT(heard, testing::ElementsAre("killer event 2 from leaf"));
  EXPECT_EQ(column->childCount(), 0);
}

TEST_F(Notification, DeletingAnAncestorFromANestedDeliveryStopsEveryLevel) {
  Recorder inner("inner"), outer("outer"), after("after");
  // The leaf's observer raises a second event on the leaf; an observer of
  // that nested delivery deletes the whole column.
  bool nested = false;
  inner.onEvent = [&] {
    if (!nested) {
      nested = true;
      leaf->notify(leaf, EventWindowActive);
    }
  };
  outer.onEvent = [&] {
    if (nested)
      dialog->remove(column);
  };
  leaf->addObserver(&inner);
  leaf->addObserver(&outer);
  leaf->addObserver(&after);
  leaf->notify(leaf, EventActivated);
  EXPECT_THAT(heard, testing::ElementsAre("inner event 2 from leaf", "inner event 4 from leaf",
                                          "outer event 4 from leaf"));
  EXPECT_EQ(dialog->childCount(), 0);
}

TEST_F(Notification, AnObserverRemovedByAnEarlierOneGetsNothing) {
  Recorder first("first"), second("second");
  first.onEvent = [&] { leaf->removeObserver(&second); };
  leaf->addObserver(&first);
  leaf->addObserver(&second);
  leaf->notify(leaf, EventActivated);
  EXPECT_THAT(heard, testing::ElementsAre("first event 2 from leaf"));
}

TEST_F(Notification, ObserversAddedDuringADeliveryOnlySeeWhatIsStillAhead) {
  Recorder first("first"), onLeaf("lateLeaf"), onColumn("lateColumn");
  first.onEvent = [&] {
    leaf->addObserver(&onLeaf);
    column->addObserver(&onColumn);
  };
  leaf->addObserver(&first);
  leaf->notify(leaf, EventActivated);
  EXPECT_THAT(heard,
              testing::ElementsAre("first event 2 from leaf", "lateColumn event 2 from leaf"));
}

TEST_F(Notification, AnExceptionLeavesTheElementUsable) {
  Recorder thrower("thrower"), up("column");
  thrower.onEvent = [] { throw std::runtime_error("observer failed"); };
  leaf->addObserver(&thrower);
  column->addObserver(&up);
  EXPECT_THROW(leaf->notify(leaf, EventActivated), std::runtime_error);
  EXPECT_THAT(heard, testing::ElementsAre("thrower event 2 from leaf"));
  heard.clear();
  thrower.onEvent = nullptr;
  leaf->notify(leaf, EventActivated);
  EXPECT_THAT(heard, testing::ElementsAre("thrower event 2 from leaf", "column event 2 from leaf"));
}

TEST_F(Notification, GlobalObserversSeeEveryDialogThatEverExists) {
  Recorder global("global");
  const Size size{100, 100};
  std::unique_ptr<MuDialog> before(MuDialog::create("before", "B", &size, 0, nullptr, nullptr));
  root->addObserverToAllDialogs(&global, true);
  std::unique_ptr<MuDialog> after(MuDialog::create("after", "A", &size, 0, nullptr, nullptr));
  EXPECT_THAT(root->dialogs(), testing::ElementsAre(dialog.get(), before.get(), after.get()));
  before->notify(before.get(), EventActivated);
  after->notify(after.get(), EventActivated);
  dialog->notify(leaf, EventActivated);
  EXPECT_THAT(heard, testing::ElementsAre("global event 2 from before", "global event 2 from after",
                                          "global event 2 from leaf"));
  heard.clear();
  root->addObserverToAllDialogs(&global, false);
  after->notify(after.get(), EventActivated);
  std::unique_ptr<MuDialog> last(MuDialog::create("last", "L", &size, 0, nullptr, nullptr));
  last->notify(last.get(), EventActivated);
  EXPECT_TRUE(heard.empty());
  before.reset();
  EXPECT_THAT(root->dialogs(), testing::ElementsAre(dialog.get(), after.get(), last.get()));
}

TEST_F(Notification, FocusIsTakenOnlyInAShownDialog) {
  leaf->setFocus();
  EXPECT_FALSE(leaf->hasFocus()); // the dialog is hidden
  dialog->setVisible(true);
  leaf->setFocus();
  EXPECT_TRUE(leaf->hasFocus());
  EXPECT_EQ(dialog->focusedElement(), leaf);
  EXPECT_EQ(column->focusedElement(), leaf);
}

} // namespace
} // namespace mui::test
