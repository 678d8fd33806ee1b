// The two texts the single sign-on scheme reads: its access list, and the
// UUID an administrator types.
#include "cloudAuth/CloudSsoEntries.h"
#include "cloudAuth/GroupUuid.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace cloudAuth::test {
namespace {

std::string joined(const std::vector<CloudSsoEntry>& entries) {
  std::string text;
  for (const CloudSsoEntry& e : entries)
    text += "[" + e.group + "|" + e.name + "|" + e.permissions + "]";
  return text;
}

TEST(CloudSsoTextTest, EntriesSplitAtTheFirstAndLastColon) {
  const struct {
    const char* text;
    const char* entries;
  } cases[] = {
      {"", ""},
      {",,", ""},
      {"u1:Sales:d", "[u1|Sales|d]"},
      {"u1:f", "[u1|u1|f]"},
      {"u1:a:b:d", "[u1|a:b|d]"},
      {"u1::d", "[u1||d]"},
      {"u1:name:", "[u1|name|d]"},
      {"u1:", "[u1|u1|d]"},
      {"S-1-5-32-544:f", "[S-1-5-32-544|S-1-5-32-544|f]"},
      {"nocolon,:name:f,u2:x:Q", "[u2|x|Q]"},
      {" u1 : n :f,u1:m:v", "[ u1 | n |f][u1|m|v]"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(joined(splitCloudSsoEntries(c.text)), c.entries) << c.text;
}

TEST(CloudSsoTextTest, UuidsAreSixteenHexBytesWithSingleDashesBetween) {
  const UuidBytes expected = {0x55, 0x0e, 0x84, 0x00, 0xe2, 0x9b, 0x41, 0xd4,
                              0xa7, 0x16, 0x44, 0x66, 0x55, 0x44, 0x00, 0x00};
  for (const char* valid :
       {"550e8400-e29b-41d4-a716-446655440000", "550e8400e29b41d4a716446655440000",
        "55-0e-84-00-e2-9b-41-d4-a7-16-44-66-55-44-00-00", "550E8400-E29B-41D4-A716-446655440000",
        "-550e8400e29b41d4a716446655440000"}) {
    std::optional<UuidBytes> bytes = parseGroupUuid(valid);
    ASSERT_TRUE(bytes) << valid;
    EXPECT_EQ(*bytes, expected) << valid;
  }
  for (const char* invalid :
       {"", "550e8400-e29b-41d4-a716-44665544000", "550e8400-e29b-41d4-a716-4466554400000",
        "550e8400--e29b-41d4-a716-446655440000", "550e840-0e29b-41d4-a716-446655440000",
        "550e8400-e29b-41d4-a716-446655440000-", "550e8400-e29b-41d4-a716-44665544000g",
        "{550e8400-e29b-41d4-a716-446655440000}", " 550e8400e29b41d4a716446655440000"})
    EXPECT_FALSE(parseGroupUuid(invalid)) << invalid;
}

} // namespace
} // namespace cloudAuth::test
