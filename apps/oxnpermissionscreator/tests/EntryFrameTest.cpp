#include "oxnpermissionscreator/EntryFrame.h"

#include "oxnpermissionscreator/CommandLine.h"

#include "plat/Exception.h"
#include "plat/tests/Capture.h"
#include "plat/tests/TempDir.h"
#include "product/ProductVersion.h"
#include "xnauth/PermissionDefn.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include <stdexcept>
#include <string>

namespace {

std::string definedLetters() {
  std::string letters;
  for (const auto& defn : xnauth::getPermissionDefns())
    letters += defn.code;
  return letters;
}

TEST(EntryFrame, PlatExceptionsGiveExitCodeOneAndOneErrorRecord) {
  plattest::LogCapture capture;
  EXPECT_EQ(app::runGuarded([]() -> int { throw plat::Exception("Bad argument '-x'."); }),
            app::exitFailure);
  EXPECT_EQ(app::runGuarded([]() -> int { throw plat::SystemException("open", 2); }),
            app::exitFailure);
  EXPECT_THAT(capture.lines("oxnpermissionscreator"),
              testing::ElementsAre("0 Bad argument '-x'.", testing::StartsWith("0 open: ")));
}

TEST(EntryFrame, OtherExceptionsAreNotCaught) {
  EXPECT_THROW(app::runGuarded([]() -> int { throw std::runtime_error("not ours"); }),
               std::runtime_error);
}

TEST(EntryFrame, BodyResultIsTheExitCode) {
  EXPECT_EQ(app::runGuarded([] { return app::exitSuccess; }), app::exitSuccess);
}

TEST(EntryFrame, StartUpWithoutArgumentsDefinesTheTwelveLetters) {
  plat::test::TempDir stateHome;
  ASSERT_EQ(setenv("XDG_STATE_HOME", stateHome.path().c_str(), 1), 0);
  char program[] = "oxnpermissionscreator";
  char* argv[] = {program, nullptr};

  app::startUp(1, argv);
  EXPECT_EQ(definedLetters(), "skpcznlhtrwq");
  EXPECT_STREQ(product::productVersion(), "7.19.0 (r13)");
  EXPECT_STREQ(product::productBuildVersion(), "7.19.0.13");
  ASSERT_EQ(app::processArgumentCount(), 1);
  EXPECT_STREQ(app::processArguments()[0], "oxnpermissionscreator");

  // A second start-up must not define anything twice.
  app::startUp(1, argv);
  EXPECT_EQ(definedLetters(), "skpcznlhtrwq");
}

} // namespace
