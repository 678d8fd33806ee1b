// The scheme of the program's own account picker, driven on the application
// loop as a user would drive the modal picker: searching this machine's
// accounts ("root" a user and a group, "adm" a group, "_apt" a user, "list" a
// user whose full name is "Mailing List Manager"), choosing some, and the
// entries and log lines that come of it.
#include "io/SocketManager.h"
#include "mui/MuList.h"
#include "mui/headless/MessageQueueHeadless.h"
#include "os/AppLoop.h"
#include "plat/tests/Capture.h"
#include "smisc/PermissionsSchemeNtLogon.h"
#include "sui/tests/EditorForm.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace smisc::test {
namespace {

using Lines = std::vector<std::string>;

class AccountPickerTest : public sui::test::EditorForm {
protected:
  void SetUp() override {
    EditorForm::SetUp();
    os::setMessageQueue(&queue);
    loop = std::make_unique<os::AppLoop>();
    start(new PermissionsSchemeNtLogon(editor.get()), "root:f");
  }
  void TearDown() override {
    loop.reset();
    os::setMessageQueue(nullptr);
    EditorForm::TearDown();
  }

  /// Clicks "add", which blocks in the picker while `user` operates it.
  void addWith(std::function<void(mui::MuDialog* picker)> user) {
    queue.post([this, user] {
      mui::MuDialog* picker = shownDialog("accountpicker");
      ASSERT_NE(picker, nullptr);
      user(picker);
    });
    ASSERT_TRUE(act("split.buttons.add", "click"));
    EXPECT_EQ(shownDialog("accountpicker"), nullptr);
  }
  /// The names the picker lists, as "name/full name" with '%' before a group.
  std::string listed(mui::MuDialog* picker, const char* list = "accounts") {
    auto* rows = static_cast<mui::MuList*>(at(list, picker));
    std::string names;
    for (int row = 0; row < rows->rowCount(); ++row) {
      names += std::string(names.empty() ? "" : " ") +
               (std::string(rows->cell(row, 0)) == "group" ? "%" : "") + rows->cell(row, 1);
      if (*rows->cell(row, 2))
        names += std::string("/") + rows->cell(row, 2);
    }
    return names;
  }
  void search(mui::MuDialog* picker, const char* text) {
    ASSERT_TRUE(act("search", "settext", text, picker));
  }

  mui::MessageQueueHeadless queue;
  std::unique_ptr<os::AppLoop> loop;
};

TEST_F(AccountPickerTest, SearchFiltersAsOneTypesByNameOrFullName) {
  addWith([this](mui::MuDialog* picker) {
    search(picker, "_APT");
    EXPECT_EQ(listed(picker), "_apt");
    search(picker, "mailing list");
    EXPECT_EQ(listed(picker), "list/Mailing List Manager");
    search(picker, "adm");
    EXPECT_NE(listed(picker).find("%adm"), std::string::npos);
    ASSERT_TRUE(act("kind", "select", "1", picker));
    EXPECT_EQ(listed(picker).find("%"), std::string::npos) << "users only";
    search(picker, "root");
    EXPECT_EQ(listed(picker), "root/root");
    ASSERT_TRUE(act("kind", "select", "2", picker));
    EXPECT_EQ(listed(picker), "%root");
    search(picker, "no-such-account-xn");
    EXPECT_EQ(listed(picker), "");
    EXPECT_FALSE(act("buttons.ok", "click", nullptr, picker)) << "nothing to take";
    ASSERT_TRUE(act("buttons.cancel", "click", nullptr, picker));
  });
  EXPECT_EQ(text(), "root:f");
  addWith([this](mui::MuDialog* picker) {
    EXPECT_EQ(listed(picker), "") << "the last search and kind stay";
    ASSERT_TRUE(act("buttons.cancel", "click", nullptr, picker));
  });
}

TEST_F(AccountPickerTest, PickedAccountsAreAddedAtTheirPlacesAndLogged) {
  plattest::LogCapture capture;
  addWith([this](mui::MuDialog* picker) {
    for (const char* name : {"adm", "_apt", "root"}) {
      search(picker, name);
      ASSERT_TRUE(act("add", "click", nullptr, picker)) << name;
    }
    EXPECT_EQ(listed(picker, "chosen"), "%adm _apt root/root");
    ASSERT_TRUE(act("chosen", "select", "2", picker));
    ASSERT_TRUE(act("remove", "click", nullptr, picker));
    search(picker, "list");
    ASSERT_TRUE(act("add", "click", nullptr, picker));
    ASSERT_TRUE(act("buttons.ok", "click", nullptr, picker));
  });
  EXPECT_EQ(text(), "_apt:d,list:d,root:f,%adm:d");
  EXPECT_EQ(capture.lines("DsObjectPicker"),
            (Lines{"30 Got 3 results", "30 [0] SID=adm", "30 [0] name=adm UPN= class=group",
                   "30 [0] path=group:adm", "30 [1] SID=_apt", "30 [1] name=_apt UPN= class=user",
                   "30 [1] path=passwd:_apt", "30 [2] SID=list", "30 [2] name=list UPN= class=user",
                   "30 [2] path=passwd:list"}));
  EXPECT_EQ(editor->getSelectedEntry(), 1) << "the last one picked";

  addWith([this](mui::MuDialog* picker) {
    search(picker, "root");
    ASSERT_TRUE(act("buttons.ok", "click", nullptr, picker)) << "takes the highlighted one";
  });
  EXPECT_EQ(text(), "_apt:d,list:d,root:f,%adm:d");
  EXPECT_EQ(editor->getSelectedEntry(), 2) << "a listed account selects its row";
}

TEST_F(AccountPickerTest, AnAccountThatCantBeListedIsTypedInstead) {
  addWith([this](mui::MuDialog* picker) {
    ASSERT_TRUE(act("buttons.typed", "click", nullptr, picker));
  });
  mui::MuDialog* typed = shownDialog("systemauthadd");
  ASSERT_NE(typed, nullptr);
  ASSERT_TRUE(act("type", "select", "1", typed));
  ASSERT_TRUE(act("name", "settext", "adm", typed));
  ASSERT_TRUE(act("buttons.ok", "click", nullptr, typed));
  settle();
  EXPECT_EQ(text(), "root:f,%adm:d");
}

} // namespace
} // namespace smisc::test
