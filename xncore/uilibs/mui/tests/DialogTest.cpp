// Dialogs on the headless binding: panels, fitting the height, showing and
// centring, the default and cancel buttons, and closing by the user.
#include "HeadlessForm.h"

#include "mui/Keys.h"
#include "mui/MuSpacer.h"
#include "mui/headless/MuDialogHeadless.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace mui::test {
namespace {

std::unique_ptr<MuDialogHeadless> makeDialog(int style, Size size) {
  return std::unique_ptr<MuDialogHeadless>(static_cast<MuDialogHeadless*>(
      MuDialog::create("d", "Dialog", &size, style, nullptr, nullptr)));
}

struct EventLog : MuObserver {
  std::vector<int> events;
  void handleEvent(MuElement*, int event) override { events.push_back(event); }
};

using Dialog = HeadlessForm;

TEST_F(Dialog, StripsTakeTheirHeightAndTheMainPanelTheRestInsideTheMargin) {
  auto form = makeDialog(0, {200, 150});
  form->setMargin(10);
  MuSpacer* main = MuSpacer::create(form.get(), 0, 0);
  MuSpacer* top = MuSpacer::create(form.get(), 0, 20);
  MuSpacer* bottom = MuSpacer::create(form.get(), 0, 30);
  MuSpacer* hiddenTop = MuSpacer::create(form.get(), 0, 99);
  form->setPanelPosition(top, MuDialog::PanelTop);
  form->setPanelPosition(bottom, MuDialog::PanelBottom);
  form->setPanelPosition(hiddenTop, MuDialog::PanelTop);
  hiddenTop->setVisible(false);
  EventLog log;
  form->addObserver(&log);
  form->relayout();
  EXPECT_EQ(Rect::at(top->getPosition(), top->getSize()), Rect(0, 0, 200, 20));
  EXPECT_EQ(Rect::at(bottom->getPosition(), bottom->getSize()), Rect(0, 120, 200, 150));
  EXPECT_EQ(Rect::at(main->getPosition(), main->getSize()), Rect(10, 30, 190, 110));
  EXPECT_THAT(log.events, testing::ElementsAre(EventResized));

  log.events.clear();
  form->setSize({0, 150});
  EXPECT_TRUE(log.events.empty()); // a minimised window keeps its arrangement
  EXPECT_EQ(main->getSize(), Size(180, 80));
}

TEST_F(Dialog, FittingTheHeightFollowsTheStyle) {
  struct Row {
    int style;
    int height;
  } rows[] = {
      {0, 300},                                // not fitted
      {MuDialog::FixedSize, 20 + 100},         // the main panel at the initial height
      {MuDialog::FitHeight, 20 + 40 + 2 * 16}, // the main panel at its minimum
      {MuDialog::FixedSize | MuDialog::FitHeight, 20 + 40 + 2 * 16},
      {MuDialog::FixedSize | MuDialog::AbsFixedSize, 300},
  };
  for (const Row& row : rows) {
    auto form = makeDialog(row.style, {200, 100});
    form->setMargin(16);
    MuSpacer::create(form.get(), 0, 40);
    MuSpacer* strip = MuSpacer::create(form.get(), 0, 20);
    form->setPanelPosition(strip, MuDialog::PanelBottom);
    form->setSize({200, 300});
    form->relayout();
    EXPECT_EQ(form->getSize(), Size(200, row.height)) << row.style;
  }
}

TEST_F(Dialog, ShowingCentresAnUnplacedDialogOnce) {
  root->setDesktopSize({1000, 800});
  auto form = makeDialog(0, {200, 100});
  form->setVisible(true);
  EXPECT_EQ(form->getPosition(), Point(400, 350));
  form->setVisible(false);
  form->MuElement::setPosition({0, 0});
  form->setVisible(true);
  EXPECT_EQ(form->getPosition(), Point(400, 350)); // unplaced: centred again

  auto placed = makeDialog(0, {200, 100});
  placed->setPosition({5, 6});
  placed->setVisible(true);
  placed->setVisible(false);
  placed->setVisible(true);
  EXPECT_EQ(placed->getPosition(), Point(5, 6));
  EXPECT_TRUE(placed->isPositioned());
}

TEST_F(Dialog, ReturnAndEscapePressTheOperableDefaultAndCancelButtons) {
  auto form = makeDialog(0, {200, 100});
  TextLeaf* ok = TextLeaf::create(form.get(), "ok", "OK");
  TextLeaf* cancel = TextLeaf::create(form.get(), "cancel", "Cancel");
  form->setButton(MuDialog::DefaultButton, ok);
  form->setButton(MuDialog::CancelButton, cancel);
  struct Clicks : MuObserver {
    std::vector<std::string> clicked;
    void handleEvent(MuElement* source, int event) override {
      if (event == EventClicked)
        clicked.push_back(source->name());
    }
  } clicks;
  form->addObserver(&clicks);

  EXPECT_TRUE(form->pressKey(KeyReturn));
  EXPECT_TRUE(form->pressKey(KeyKpEnter));
  EXPECT_TRUE(form->pressKey(KeyEscape));
  EXPECT_FALSE(form->pressKey('a'));
  ok->setEnabled(false);
  EXPECT_FALSE(form->pressKey(KeyReturn));
  ok->setEnabled(true);
  ok->setLocked(true);
  EXPECT_FALSE(form->activate(MuDialog::DefaultButton));
  EXPECT_THAT(clicks.clicked, testing::ElementsAre("ok", "ok", "cancel"));

  struct Take : MuDialog::ActivateCallback {
    std::vector<int> asked;
    bool activate(int which, MuDialog*) override {
      asked.push_back(which);
      return which == MuDialog::DefaultButton;
    }
  } take;
  form->setActivateCallback(&take);
  EXPECT_TRUE(form->activate(MuDialog::DefaultButton));
  EXPECT_TRUE(form->activate(MuDialog::CancelButton)); // not taken: the button is pressed
  EXPECT_THAT(take.asked, testing::ElementsAre(0, 1));
  EXPECT_THAT(clicks.clicked, testing::ElementsAre("ok", "ok", "cancel", "cancel"));
}

TEST_F(Dialog, ClosingByTheUserHidesThenTellsUnlessTheCallbackRefuses) {
  auto form = makeDialog(0, {200, 100});
  EventLog log;
  form->addObserver(&log);
  struct Refuse : MuDialog::CloseCallback {
    bool allow = false;
    bool closing(MuDialog*) override { return allow; }
  } refuse;
  form->setCloseCallback(&refuse);
  form->setVisible(true);
  log.events.clear();
  form->closeByUser();
  EXPECT_TRUE(form->isVisible());
  EXPECT_TRUE(log.events.empty());
  refuse.allow = true;
  form->closeByUser();
  EXPECT_FALSE(form->isVisible());
  EXPECT_THAT(log.events, testing::ElementsAre(EventClosed));
}

TEST_F(Dialog, DescribeShowsTheStyleWords) {
  auto form =
      makeDialog(MuDialog::FixedSize | MuDialog::WindowModal | MuDialog::FitHeight, {200, 100});
  EXPECT_STREQ(form->describe().get(),
               "shown 0\nenabled 1\nlocked 0\npos 0,0\nsize 200,100\nelement Dialog\n"
               "fixedsize 1\ndisableclose 0\nnohide 0\nmodal 1\nabsfixedsize 0\n");
  EXPECT_EQ(form->initialHeight(), 100);
  EXPECT_EQ(form->margin(), Mui::metric(MetricDialogMargin));
}

} // namespace
} // namespace mui::test
