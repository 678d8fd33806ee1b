// Window behaviour of dialogs on the headless binding: modal runs on the
// application loop, dragging by the background, hiding on a press elsewhere,
// activation, and fitting the height at several display densities.
#include "HeadlessForm.h"

#include "io/SocketManager.h"
#include "mui/headless/MessageQueueHeadless.h"
#include "mui/headless/MuDialogHeadless.h"
#include "os/AppLoop.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace mui::test {
namespace {

MuDialogHeadless* makeDialog(const char* name, int style, MuDialog* parent = nullptr) {
  const Size size{200, 100};
  return static_cast<MuDialogHeadless*>(
      MuDialog::create(name, name, &size, style, parent, nullptr));
}

/// The headless form with the application loop on the headless queue.
class DialogLoop : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    os::setMessageQueue(&queue);
    loop = std::make_unique<os::AppLoop>();
  }
  void TearDown() override {
    loop.reset();
    os::setMessageQueue(nullptr);
    HeadlessForm::TearDown();
  }

  MessageQueueHeadless queue;
  std::unique_ptr<os::AppLoop> loop;
  std::vector<std::string> heard;
};

TEST_F(DialogLoop, ModalRunsNestAndEachEndsWhenItsDialogHides) {
  std::unique_ptr<MuDialogHeadless> outer(makeDialog("outer", MuDialog::CodeModal, dialog.get()));
  std::unique_ptr<MuDialogHeadless> inner(makeDialog("inner", MuDialog::CodeModal, outer.get()));
  dialog->setVisible(true);
  queue.post([&] {
    heard.push_back(outer->runningCodeModal() ? "outer runs" : "outer idle");
    queue.post([&] {
      heard.push_back(outer->getWindow()->isEnabled() ? "outer enabled" : "outer disabled");
      outer->setVisible(false); // its run goes on until the inner one returns
      queue.post([&] { inner->setVisible(false); });
    });
    inner->setVisible(true);
    heard.push_back("inner returned");
  });
  outer->setVisible(true);
  heard.push_back("outer returned");
  EXPECT_THAT(heard, testing::ElementsAre("outer runs", "outer disabled", "inner returned",
                                          "outer returned"));
  EXPECT_TRUE(outer->getWindow()->isEnabled());
  EXPECT_TRUE(dialog->getWindow()->isEnabled());
  EXPECT_FALSE(outer->runningCodeModal());
  EXPECT_EQ(queue.pending(), 0u);
}

TEST_F(DialogLoop, AQuitEndsTheModalRunAndIsTakenByIt) {
  std::unique_ptr<MuDialogHeadless> modal(makeDialog("modal", MuDialog::CodeModal));
  queue.post([&] {
    queue.post([] { os::AppLoop::quit(5); });
    modal->setVisible(true);
    heard.push_back(modal->isVisible() ? "returned, still shown" : "returned hidden");
    queue.post([] { os::AppLoop::quit(2); });
  });
  EXPECT_EQ(loop->run(), 2);
  EXPECT_THAT(heard, testing::ElementsAre("returned, still shown"));
}

TEST_F(DialogLoop, ADialogDestroyedInItsOwnRunEndsIt) {
  MuDialogHeadless* modal = makeDialog("modal", MuDialog::CodeModal, dialog.get());
  dialog->setVisible(true);
  queue.post([&] { delete modal; });
  modal->setVisible(true);
  EXPECT_TRUE(dialog->getWindow()->isEnabled());
}

TEST_F(DialogLoop, ShowingADialogAgainFromItsOwnRunIsAnError) {
  std::unique_ptr<MuDialogHeadless> modal(makeDialog("modal", MuDialog::CodeModal));
  queue.post([&] { modal->setVisible(true); });
  EXPECT_DEATH(modal->setVisible(true), "!runningCodeModal");
}

/// A leaf that answers to another type word, as the controls do.
class TypedLeaf : public MuElement {
public:
  static TypedLeaf* create(MuContainer* parent, const char* type) {
    auto* leaf = new TypedLeaf(parent, type);
    parent->add(leaf);
    return leaf;
  }
  const char* typeName() override { return type_; }

private:
  TypedLeaf(MuContainer* parent, const char* type) : MuElement(parent, type), type_(type) {
    setCommon(std::make_unique<MuCommonHeadless>(this));
  }
  const char* type_;
};

TEST_F(HeadlessForm, ThePressOnABackgroundElementDragsTheWindow) {
  struct Row {
    MuDialog::MoveCallback* callback;
    const char* type;
    bool drags;
  } rows[] = {
      {MuDialog::moveCallbackExceptButtons(), "element", true},
      {MuDialog::moveCallbackExceptButtons(), "button", false},
      {MuDialog::moveCallbackExceptButtons(), "list", true},
      {MuDialog::moveCallbackExceptControls(), "static", true},
      {MuDialog::moveCallbackExceptControls(), "button", false},
      {MuDialog::moveCallbackExceptControls(), "list", false},
      {MuDialog::moveCallbackExceptControls(), "check", false},
      {nullptr, "element", false},
  };
  for (const Row& row : rows) {
    std::unique_ptr<MuDialogHeadless> form(makeDialog("form", 0));
    TypedLeaf* leaf = TypedLeaf::create(form.get(), row.type);
    form->setMoveCallback(row.callback);
    form->setVisible(true);
    const Point origin = form->getPosition();
    EXPECT_EQ(form->pressMouse(leaf, {10, 10}), row.drags) << row.type;
    form->dragMouseTo(origin.translate({10 + 30, 10 - 40}));
    EXPECT_EQ(form->getPosition(), row.drags ? origin.translate({30, -40}) : origin) << row.type;
    EXPECT_FALSE(form->isDragging());
    EXPECT_FALSE(form->isPositioned()) << "a dragged dialog is still centred when shown again";
  }
}

TEST_F(HeadlessForm, TheMouseDownCallbackGoesBeforeTheDrag) {
  struct Take : MuDialog::MouseDownCallback {
    int presses = 0;
    bool mouseDown(MuDialog*) override { return ++presses > 0; }
  } take;
  std::unique_ptr<MuDialogHeadless> form(makeDialog("form", 0));
  form->setMoveCallback(MuDialog::moveCallbackExceptButtons());
  form->setMouseDownCallback(&take);
  EXPECT_TRUE(form->pressMouse(form.get(), {1, 1}));
  EXPECT_FALSE(form->isDragging());
  EXPECT_EQ(take.presses, 1);
}

TEST_F(HeadlessForm, ADismissingDialogHidesOnAPressElsewhereOrWhenInactive) {
  struct Row {
    int style;
    const char* action;
    bool staysShown;
  } rows[] = {
      {MuDialog::DismissOnOutsideClick, "press", false},
      {MuDialog::DismissOnOutsideClick, "deactivate", false},
      {MuDialog::DismissOnOutsideClick, "activate", true},
      {MuDialog::Popup, "press", true},
      {MuDialog::Popup, "deactivate", true},
  };
  for (const Row& row : rows) {
    std::unique_ptr<MuDialogHeadless> popup(makeDialog("popup", row.style));
    std::vector<int> events;
    struct Log : MuObserver {
      std::vector<int>& events;
      explicit Log(std::vector<int>& e) : events(e) {}
      void handleEvent(MuElement*, int event) override { events.push_back(event); }
    } log(events);
    popup->setVisible(true);
    popup->addObserver(&log);
    const std::string action = row.action;
    if (action == "press") {
      EXPECT_FALSE(popup->pressOutside()) << "a press elsewhere goes on to its target";
    } else {
      popup->setActive(action == "activate");
    }
    EXPECT_EQ(popup->isVisible(), row.staysShown) << row.style << " " << action;
    if (action != "press") {
      EXPECT_THAT(events, testing::ElementsAre(action == "activate" ? EventWindowActive
                                                                    : EventWindowInactive));
    }
  }
}

TEST(DialogSizing, AFittedDialogFollowsTheDisplayDensity) {
  struct Row {
    int ppmm;
    int margin;
  } rows[] = {{4, 8}, {6, 12}, {8, 16}};
  for (const Row& row : rows) {
    ppmmParameter.setInt(row.ppmm, 10);
    MuiHeadless root;
    installHeadlessBinding(root);
    const Size size{Mui::textToPixels(400), Mui::textToPixels(100)};
    std::unique_ptr<MuDialog> form(
        MuDialog::create("fit", "Fit", &size, MuDialog::FitHeight, nullptr, nullptr));
    // Three lines of 16 pixels at the default font size.
    TextLeaf::create(form.get(), "text", "one\ntwo\nthree");
    form->setVisible(true);
    EXPECT_EQ(form->getSize(), Size(size.width, 3 * 16 + 2 * row.margin)) << row.ppmm;
    EXPECT_EQ(form->getChild(0)->getPosition(), Point(row.margin, row.margin));
    form.reset();
  }
  ppmmParameter.unset(10, false);
}

} // namespace
} // namespace mui::test
