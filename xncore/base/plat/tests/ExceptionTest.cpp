#include "plat/Exception.h"

#include "plat/Assertion.h"
#include "plat/BoundedAppend.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

using plat::Exception;

TEST(Exception, LongMessagesAreCutOnCharacterBoundaries) {
  for (std::string tail : {"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"}) {
    for (std::size_t prefix = 250; prefix <= 256; ++prefix) {
      std::string text = std::string(prefix, 'a') + tail;
      // 255 bytes of room: the character is kept whole or dropped whole.
      std::string expected =
          prefix + tail.size() <= 255 ? text : std::string(std::min<std::size_t>(prefix, 255), 'a');
      SCOPED_TRACE(testing::Message() << prefix << " + " << tail.size());
      EXPECT_EQ(Exception(text.c_str()).what(), expected);
      EXPECT_EQ(Exception(plat::formatted, "%s", text.c_str()).what(), expected);
    }
  }

  char buffer[8] = "ab";
  plat::appendBounded(buffer, sizeof buffer, "cdefghij", 3);
  plat::appendBounded(buffer, sizeof buffer, "\xC3\xA9\xC3\xA9");
  plat::appendBoundedFormat(buffer, sizeof buffer, "%d", 1);
  EXPECT_STREQ(buffer, "abcde\xC3\xA9");
  // The count shrinks so that only whole characters go in.
  char chars[10] = "ab";
  plat::appendBoundedChar(chars, sizeof chars, 0x20AC, 5);
  plat::appendBoundedChar(chars, sizeof chars, 0xE9, 1);
  plat::appendBoundedChar(chars, sizeof chars, 'x', 5);
  EXPECT_STREQ(chars, "ab\xE2\x82\xAC\xE2\x82\xACx");
}

TEST(Exception, TypeKindAndDetail) {
  // {type, kind asked, isType, typeKind, typeDetail}
  const char* const cases[][5] = {{"System/5", "System", "1", "System", "5"},
                                  {"System", "System", "1", "System", nullptr},
                                  {"Systems/5", "System", "0", "Systems", "5"},
                                  {"a/b/c", "a/b", "1", "a", "b/c"}};
  for (const auto& c : cases) {
    Exception e;
    e.setType(c[0]);
    EXPECT_EQ(e.isType(c[1]), *c[2] == '1') << c[0] << " is " << c[1];
    EXPECT_STREQ(e.typeKind().get(), c[3]) << c[0];
    EXPECT_STREQ(e.typeDetail(), c[4]) << c[0];
  }
  EXPECT_STREQ(Exception("bad").setType("A/1").setType("B").type(), "B"); // replaces the type
}

std::string systemText(int code, const char* prefix = "") {
  return std::string(prefix) + std::strerror(code) + " (" + std::to_string(code) + ")";
}

TEST(Exception, SystemAndLibraryErrors) {
  plat::SystemException bare("", ENOENT); // no leading ": "
  EXPECT_EQ(bare.what(), systemText(ENOENT));
  EXPECT_STREQ(bare.type(), "System/2");
  EXPECT_EQ(bare.code(), ENOENT);
  EXPECT_EQ(plat::SystemExceptionFmt("open %s", EACCES, "f").what(),
            systemText(EACCES, "open f: "));
  plat::SystemException negative("call", -5); // shown in hexadecimal
  EXPECT_EQ(negative.what(), std::string("call: ") + std::strerror(-5) + " (fffffffb)");

  errno = ENOENT;
  plat::StdlibException fromErrno("read %d", 3);
  EXPECT_EQ(fromErrno.what(), systemText(ENOENT, "read 3: "));
  EXPECT_STREQ(fromErrno.type(), "Stdlib/2");
  EXPECT_EQ(plat::StdlibException(EIO, "%s", "").what(), systemText(EIO));
}

int zero() {
  return 0;
}

TEST(Exception, AssertionFailMessageAndDetail) {
  plat::AssertionFail fail("x > 0", "file.cpp", 12);
  EXPECT_STREQ(fail.what(), "Assertion 'x > 0' failed at file.cpp:12");
  EXPECT_STREQ(fail.type(), "AssertionFail");
  EXPECT_EQ(&fail.addDetail("Default %s for %s", "<null>", "Port"), &fail);
  fail.addDetail("%d", 2);
  EXPECT_STREQ(fail.what(), "Assertion 'x > 0' failed at file.cpp:12: Default <null> for Port: 2");

  EXPECT_THROW(XN_ASSERT_THROW(zero() == 1), plat::AssertionFail);
  EXPECT_NO_THROW(XN_ASSERT_THROW(zero() == 0));
}

TEST(AssertionDeathTest, FatalChecksExitWithStatusOne) {
  EXPECT_EXIT(XN_ASSERT(zero() == 1), ::testing::ExitedWithCode(1),
              "Assertion 'zero\\(\\) == 1' failed at .*ExceptionTest\\.cpp:[0-9]+");
  // The first assertion logs the message and a stack trace, then flushes.
  EXPECT_EXIT(
      {
        plat::setAssertionLog({[](const char* text) { std::fprintf(stderr, "LOG<%s>\n", text); },
                               [] { std::fprintf(stderr, "FLUSHED\n"); }});
        XN_ASSERT(zero() == 2);
      },
      ::testing::ExitedWithCode(1),
      "LOG<Assertion 'zero\\(\\) == 2' failed at [^>]*>\nLOG<stacktrace: [^>]*>\n(.|\n)*FLUSHED");
  // An assertion inside the log skips logging and still ends the process.
  EXPECT_EXIT(
      {
        plat::setAssertionLog({[](const char*) { XN_ASSERT(zero() == 4); }, nullptr});
        XN_ASSERT(zero() == 3);
      },
      ::testing::ExitedWithCode(1), "Assertion 'zero\\(\\) == 4' failed");
}

TEST(AssertionDeathTest, BadUtf8CanBeMadeFatal) {
  ASSERT_FALSE(plat::badUtf8Asserts());
  EXPECT_EXIT(
      {
        plat::setBadUtf8Asserts(true);
        plat::BadUtf8 bad(plat::formatted, "Bad UTF-8 string for %s", "Name");
      },
      ::testing::ExitedWithCode(1),
      "Assertion '!badUtf8Assert' failed at .*: Bad UTF-8 string for Name");
  EXPECT_FALSE(plat::badUtf8Asserts()); // the child's setting does not leak
}

} // namespace
