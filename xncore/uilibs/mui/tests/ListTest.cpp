// Lists on the headless binding: rows and cells, the selection by program
// and by the user with the events each raises, the list's own keys, and the
// widths of its columns.
#include "HeadlessForm.h"

#include "io/SocketManager.h"
#include "mui/Keys.h"
#include "mui/MuList.h"
#include "mui/headless/MuListHeadless.h"

#include <gmock/gmock.h>

#include <set>
#include <vector>

namespace mui::test {
namespace {

/// Refuses the rows it is given.
struct Refuse : MuList::Callback {
  std::set<int> rows;
  bool isSelectable(MuList*, int row) override { return rows.count(row) == 0; }
};

struct Events : MuObserver {
  std::vector<int> heard;
  void handleEvent(MuElement*, int event) override { heard.push_back(event); }
};

class ListForm : public HeadlessForm {
protected:
  void SetUp() override {
    HeadlessForm::SetUp();
    io::processSocketManager(); // the thread's timers
  }
  MuListHeadless* makeList(int style, MuList::Callback* callback = nullptr) {
    auto* list =
        static_cast<MuListHeadless*>(MuList::create(dialog.get(), "list", style, callback));
    list->addColumn(7, MuList::TextColumn, "Name", 0);
    for (const char* name : {"alpha", "beta", "gamma", "delta", "bravo"})
      list->addRow(-1, name);
    list->addObserver(&events);
    return list;
  }
  /// Fires what the loop would fire: the list's timer for a cleared selection.
  static void runTimers() { io::processSocketManager().timers().process(); }

  Events events;
};

TEST_F(ListForm, RowsGoWhereAskedAndEachCellIntoItsColumn) {
  MuList* list = MuList::create(dialog.get(), "list", 0, nullptr);
  list->addColumn(1, MuList::ImageColumn, "", 0);
  list->addColumn(2, MuList::TextColumn, "Name", 0);
  list->addColumn(3, 9, "Kind counts as text", 40);
  EXPECT_EQ(list->column(2).kind, MuList::TextColumn);
  EXPECT_EQ(list->addRow(-1, "user", "b", "x"), 0);
  EXPECT_EQ(list->addRow(5, "group", "c", "y"), 1);
  EXPECT_EQ(list->addRow(0, "user", "a", "z"), 0);
  list->insertRow(list->rowCount());
  list->setCell(3, 3, "w");
  list->setCell(3, 42, "nowhere");
  list->removeRow(list->rowCount());
  list->removeRow(-1);
  EXPECT_STREQ(list->describeItems().get(), "0:\"user\"|\"a\"|\"z\"\n1:\"user\"|\"b\"|\"x\"\n"
                                            "2:\"group\"|\"c\"|\"y\"\n3:\"\"|\"\"|\"w\"\n");
  EXPECT_EQ(list->columnIndex(3), 2);
  EXPECT_EQ(list->columnIndex(4), -1);
  list->removeAll();
  EXPECT_EQ(list->rowCount(), 0);
  EXPECT_EQ(list->columnCount(), 3);
}

TEST_F(ListForm, TheProgramSelectsOnlySelectableRowsAndRaisesNothing) {
  Refuse refuse;
  refuse.rows = {2};
  MuListHeadless* list = makeList(0, &refuse);
  list->setSelection(1);
  EXPECT_EQ(list->getSelection(), 1);
  list->setSelection(2);
  EXPECT_EQ(list->getSelection(), -1);
  list->setSelection(3);
  list->setSelection(9);
  EXPECT_EQ(list->getSelection(), -1);
  EXPECT_EQ(list->shownSelection(), -1);
  EXPECT_TRUE(events.heard.empty());

  list->setSelection(3);
  list->insertRow(0);
  EXPECT_EQ(list->getSelection(), 4) << "the selection stays on its row";
  list->removeRow(1);
  EXPECT_EQ(list->getSelection(), 3);
  EXPECT_EQ(list->shownSelection(), 3);
  list->removeRow(3);
  EXPECT_EQ(list->getSelection(), -1);
  EXPECT_TRUE(events.heard.empty());
}

TEST_F(ListForm, TheUserMovingTheSelectionRaisesOneEventAndClearingItOneLater) {
  Refuse refuse;
  refuse.rows = {4};
  MuListHeadless* list = makeList(0, &refuse);
  dialog->setVisible(true);
  list->pressRow(1);
  list->pressRow(3);
  list->pressRow(4); // refused: the list takes the focus only
  EXPECT_EQ(list->getSelection(), 3);
  EXPECT_TRUE(list->hasFocus());
  EXPECT_THAT(events.heard, testing::ElementsAre(EventChanged, EventChanged));

  events.heard.clear();
  list->pressRow(-1);
  EXPECT_EQ(list->getSelection(), -1);
  EXPECT_TRUE(events.heard.empty()) << "a cleared selection is told from the loop";
  runTimers();
  EXPECT_THAT(events.heard, testing::ElementsAre(EventChanged));

  events.heard.clear();
  list->pressRow(0);
  list->doubleClickRow(2);
  list->doubleClickRow(-1);
  EXPECT_THAT(events.heard, testing::ElementsAre(EventChanged, EventChanged, EventActivated));
  runTimers();
  EXPECT_EQ(events.heard.size(), 4u) << "the press below the rows cleared the selection";

  list->setEnabled(false);
  list->pressRow(1);
  EXPECT_EQ(list->getSelection(), -1);
}

TEST_F(ListForm, WithKeepSelectionAPressOnNothingChangesNothing) {
  MuListHeadless* list = makeList(MuList::KeepSelection);
  list->pressRow(2);
  list->pressRow(-1);
  runTimers();
  EXPECT_EQ(list->getSelection(), 2);
  EXPECT_THAT(events.heard, testing::ElementsAre(EventChanged));
}

TEST_F(ListForm, TheListsOwnKeysMoveOverSelectableRows) {
  // Rows: 0 alpha, 1 beta, 2 gamma (refused), 3 delta, 4 bravo.
  struct Row {
    int style;
    int from;
    int key;
    int to;
  } rows[] = {
      {0, 1, KeyDown, 3},
      {0, 3, KeyPageUp, 1},
      {0, -1, KeyDown, 0},
      {0, -1, KeyUp, 4},
      {0, 4, KeyHome, 0},
      {0, 0, KeyEnd, 4},
      {0, 0, KeyUp, -1},
      {MuList::KeepSelection, 0, KeyUp, 0},
      {MuList::KeepSelection, 4, KeyPageDown, 4},
      {0, 1, 'b', 4},
      {0, 4, 'B', 1},
      {0, 0, 'g', -1},
      {MuList::KeepSelection, 0, 'z', 0},
      {0, 0, 'd', 3},
  };
  for (const Row& row : rows) {
    Refuse refuse;
    refuse.rows = {2};
    std::unique_ptr<MuDialog> form(MuDialog::create("keys", "Keys", nullptr, 0, nullptr, nullptr));
    auto* list = static_cast<MuListHeadless*>(MuList::create(form.get(), "l", row.style, &refuse));
    list->addColumn(0, MuList::TextColumn, "", 0);
    for (const char* name : {"alpha", "beta", "gamma", "delta", "bravo"})
      list->addRow(-1, name);
    list->setSelection(row.from);
    list->pressKey(row.key);
    EXPECT_EQ(list->getSelection(), row.to)
        << "style " << row.style << " from " << row.from << " key " << row.key;
  }
}

TEST_F(ListForm, ReturnReachesTheDialogWhateverTheSelection) {
  MuListHeadless* list = makeList(0);
  TextLeaf* ok = TextLeaf::create(dialog.get(), "ok", "OK");
  dialog->setButton(MuDialog::DefaultButton, ok);
  Events okEvents;
  ok->addObserver(&okEvents);
  list->pressKey(KeyReturn);
  list->setSelection(1);
  list->pressKey(KeyKpEnter);
  list->pressKey(KeyF4); // swallowed
  EXPECT_THAT(okEvents.heard, testing::ElementsAre(EventClicked, EventClicked));
  EXPECT_TRUE(events.heard.empty());
}

TEST_F(ListForm, ColumnsShareTheWidthOrFitTheirText) {
  // Text is 7 pixels a code point; an image column takes the image size (16 at ppmm 4).
  struct Row {
    int style;
    int fixedWidth;
    std::vector<int> widths;
  } rows[] = {
      {0, 0, {16, 92, 92}},
      {0, 50, {16, 134, 50}},
      {MuList::FitColumns, 0, {16, 7 * 6 + 12, 200 - 16 - (7 * 6 + 12)}},
      {MuList::FitColumns, 50, {16, 200 - 16 - 50, 50}},
  };
  for (const Row& row : rows) {
    std::unique_ptr<MuDialog> form(MuDialog::create("w", "W", nullptr, 0, nullptr, nullptr));
    auto* list = static_cast<MuListHeadless*>(MuList::create(form.get(), "l", row.style, nullptr));
    list->addColumn(0, MuList::ImageColumn, "", 0);
    list->addColumn(1, MuList::TextColumn, "Name", 0);
    list->addColumn(2, MuList::TextColumn, "Kind", row.fixedWidth);
    list->addRow(-1, "user", "root", "local");
    list->addRow(-1, "group", "admins", "domain");
    list->setSize({200, 100});
    EXPECT_EQ(list->widths(), row.widths) << row.style << " " << row.fixedWidth;
    EXPECT_EQ(list->minWidth(0), 4 * 12 + 16 + 7 * 6 + 7 * 6);
  }
}

TEST_F(ListForm, AContentSizedColumnFollowsItsWidestText) {
  MuListHeadless* list = makeList(MuList::FitColumns);
  list->setSize({20, 100});
  EXPECT_EQ(list->widths(), std::vector<int>{7 * 5 + 12});
  list->addRow(-1, "epsilon");
  EXPECT_EQ(list->widths(), std::vector<int>{7 * 7 + 12});
  list->setCell(5, 7, "eta");
  EXPECT_EQ(list->minWidth(0), 2 * 12 + 7 * 5);
  list->setCell(0, 7, std::string(300, 'x').c_str());
  EXPECT_EQ(list->minWidth(0), 2 * 12 + 7 * 256) << "only so much of a text counts";
}

TEST_F(ListForm, SelectingByNameRaisesTheEventUnlessTheListIsDisabled) {
  MuListHeadless* list = makeList(0);
  EXPECT_TRUE(list->perform("select", "3"));
  EXPECT_TRUE(list->perform("select", "3"));
  EXPECT_FALSE(list->perform("select", nullptr));
  EXPECT_FALSE(list->perform("click", "1"));
  list->setLocked(true);
  EXPECT_FALSE(list->perform("select", "1"));
  EXPECT_EQ(list->getSelection(), 3);
  EXPECT_THAT(events.heard, testing::ElementsAre(EventChanged, EventChanged));
  EXPECT_STREQ(list->describe().get(), "shown 0\nenabled 1\nlocked 1\npos 0,0\nsize 1,1\n"
                                       "element List\nvalue 3\n");
}

} // namespace
} // namespace mui::test
