#include "plat/Exception.h"

#include "plat/Assertion.h"
#include "plat/BoundedAppend.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <string>

namespace {

using plat::Exception;

TEST(Exception, LongMessagesAreCutOnCharacterBoundaries) {
  for (std::string tail : {"\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80"}) {
    for (std::size_t prefix = 248; prefix <= 256; ++prefix) {
      std::string text = std::string(prefix, 'a') + tail;
      // 255 bytes of room: the character is kept whole or dropped whole.
      std::string expected =
          prefix + tail.size() <= 255 ? text : std::string(std::min<std::size_t>(prefix, 255), 'a');
      SCOPED_TRACE(testing::Message() << prefix << " + " << tail.size());
      EXPECT_EQ(Exception(text.c_str()).what(), expected);
      EXPECT_EQ(Exception(plat::formatted, "%s", text.c_str()).what(), expected);
    }
  }
  std::string exact(255, 'x');
  EXPECT_EQ(Exception((exact + "yz").c_str()).what(), exact);
}

TEST(BoundedAppend, AppendsWhatFits) {
  char buffer[8] = "ab";
  plat::appendBounded(buffer, sizeof buffer, "cdefghij", 3);
  EXPECT_STREQ(buffer, "abcde");
  plat::appendBounded(buffer, sizeof buffer, nullptr);
  plat::appendBounded(buffer, sizeof buffer, "\xC3\xA9\xC3\xA9");
  EXPECT_STREQ(buffer, "abcde\xC3\xA9");
  plat::appendBounded(buffer, sizeof buffer, "z");
  EXPECT_STREQ(buffer, "abcde\xC3\xA9");

  char formatted[8] = "abcd";
  plat::appendBoundedFormat(formatted, sizeof formatted, "%s", "x\xE2\x82\xAC");
  EXPECT_STREQ(formatted, "abcdx");
  plat::appendBoundedFormat(formatted, sizeof formatted, "%d", 12345);
  EXPECT_STREQ(formatted, "abcdx12");

  // The count shrinks so that only whole characters go in.
  char chars[10] = "ab";
  plat::appendBoundedChar(chars, sizeof chars, 0x20AC, 5);
  EXPECT_STREQ(chars, "ab\xE2\x82\xAC\xE2\x82\xAC");
  plat::appendBoundedChar(chars, sizeof chars, 0xE9, 1);
  plat::appendBoundedChar(chars, sizeof chars, 'x', 0);
  EXPECT_STREQ(chars, "ab\xE2\x82\xAC\xE2\x82\xAC");
  plat::appendBoundedChar(chars, sizeof chars, 'x', 5);
  EXPECT_STREQ(chars, "ab\xE2\x82\xAC\xE2\x82\xACx");
}

struct TypeCase {
  const char* type;
  const char* kind;
  bool matches;
  const char* typeKind;
  const char* detail; // null: no slash
};

TEST(Exception, TypeKindAndDetail) {
  const TypeCase cases[] = {
      {"System/5", "System", true, "System", "5"},
      {"System", "System", true, "System", nullptr},
      {"Systems/5", "System", false, "Systems", "5"},
      {"System/5", "Sys", false, "System", "5"},
      {"a/b/c", "a", true, "a", "b/c"},
      {"a/b/c", "a/b", true, "a", "b/c"},
      {"AssertionFail", "Assertion", false, "AssertionFail", nullptr},
      {"", "System", false, "", nullptr},
  };
  for (const TypeCase& c : cases) {
    SCOPED_TRACE(std::string(c.type) + " is " + c.kind);
    Exception e;
    e.setType(c.type);
    EXPECT_STREQ(e.type(), c.type);
    EXPECT_EQ(e.isType(c.kind), c.matches);
    EXPECT_STREQ(e.typeKind().get(), c.typeKind);
    EXPECT_STREQ(e.typeDetail(), c.detail);
  }
}

std::string systemText(int code, const char* prefix = "") {
  return std::string(prefix) + std::strerror(code) + " (" + std::to_string(code) + ")";
}

TEST(SystemException, AppendsTheSystemText) {
  plat::SystemException bare("", ENOENT);
  EXPECT_EQ(bare.what(), systemText(ENOENT));
  EXPECT_STREQ(bare.type(), "System/2");
  EXPECT_EQ(bare.code(), ENOENT);

  plat::SystemException open("open", EACCES);
  EXPECT_EQ(open.what(), systemText(EACCES, "open: "));
  EXPECT_STREQ(open.type(), "System/13");

  plat::SystemExceptionFmt formatted("open %s", ENOENT, "f.txt");
  EXPECT_EQ(formatted.what(), systemText(ENOENT, "open f.txt: "));

  // Negative codes are shown in hexadecimal.
  plat::SystemException negative("call", -5);
  EXPECT_EQ(negative.what(), std::string("call: ") + std::strerror(-5) + " (fffffffb)");
  EXPECT_STREQ(negative.type(), "System/-5");
}

TEST(StdlibException, ReadsErrnoUnlessGiven) {
  errno = ENOENT;
  plat::StdlibException fromErrno("read %d", 3);
  EXPECT_EQ(fromErrno.code(), ENOENT);
  EXPECT_EQ(fromErrno.what(), systemText(ENOENT, "read 3: "));
  EXPECT_STREQ(fromErrno.type(), "Stdlib/2");

  errno = ENOENT;
  plat::StdlibException given(EIO, "%s", "");
  EXPECT_EQ(given.code(), EIO);
  EXPECT_EQ(given.what(), systemText(EIO));
  EXPECT_STREQ(given.type(), "Stdlib/5");
}

TEST(AssertionFail, MessageTypeAndDetail) {
  plat::AssertionFail fail("x > 0", "file.cpp", 12);
  EXPECT_STREQ(fail.what(), "Assertion 'x > 0' failed at file.cpp:12");
  EXPECT_STREQ(fail.type(), "AssertionFail");
  EXPECT_STREQ(fail.expression(), "x > 0");
  EXPECT_EQ(fail.line(), 12);

  plat::AssertionFail& same = fail.addDetail("Default value <null> for %s not allowed", "Port");
  EXPECT_EQ(&same, &fail);
  fail.addDetail("%d", 2);
  EXPECT_STREQ(fail.what(), "Assertion 'x > 0' failed at file.cpp:12: Default value <null> for "
                            "Port not allowed: 2");
}

TEST(Exception, Kinds) {
  EXPECT_STREQ(Exception(nullptr).what(), "");
  Exception formatted(plat::formatted, "%s %d", "code", 7);
  EXPECT_STREQ(formatted.what(), "code 7");
  EXPECT_STREQ(formatted.type(), "");
  EXPECT_STREQ(plat::ExceptionFmt("%d-%d", 1, 2).what(), "1-2");

  plat::DynamicFnLoadFailed load("libcrypto", "EVP_init");
  EXPECT_STREQ(load.what(), "Function EVP_init not found in libcrypto library");
  EXPECT_STREQ(load.type(), "DynamicFnLoadFailed");

  ASSERT_FALSE(plat::badUtf8Asserts());
  EXPECT_STREQ(plat::BadUtf8("bad text").type(), "BadUtf8");
  plat::BadUtf8 named(plat::formatted, "Bad UTF-8 string for %s", "Name");
  EXPECT_STREQ(named.what(), "Bad UTF-8 string for Name");
  EXPECT_TRUE(named.isType("BadUtf8"));
}

TEST(Exception, CopiesKeepBothFields) {
  plat::SystemException original("open", ENOENT);
  plat::SystemException copy(original);
  EXPECT_EQ(copy.code(), ENOENT);
  Exception sliced = copy;
  EXPECT_STREQ(sliced.what(), original.what());
  EXPECT_STREQ(sliced.type(), "System/2");

  plat::AssertionFail fail("a", "b.cpp", 3);
  fail.addDetail("more");
  plat::AssertionFail failCopy = fail;
  EXPECT_STREQ(failCopy.what(), "Assertion 'a' failed at b.cpp:3: more");
  EXPECT_STREQ(failCopy.type(), "AssertionFail");

  // setType replaces the type and hands back the exception, to throw in one go.
  try {
    throw Exception("bad argument").setType("First/1").setType("BadCmdLineArg");
  } catch (const Exception& e) {
    EXPECT_STREQ(e.what(), "bad argument");
    EXPECT_STREQ(e.type(), "BadCmdLineArg");
  }
}

} // namespace
