// Permission sets over the program's full alphabet: the grammar, the text a set
// keeps, comparisons, combining sets, and the preset names.
#include "xnauth/Permissions.h"

#include "FeatureLetters.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace xnauth::test {
namespace {

using PermissionsTest = WithFeatureLetters;

// The canonical form names every state, so it serves to state expectations.
std::string statesOf(const Permissions& set) {
  Permissions copy(set);
  copy.normalize();
  return copy.getText();
}

TEST_F(PermissionsTest, AcceptsTheGrammarAndKeepsTheText) {
  const struct {
    const char* text;
    const char* states;
  } cases[] = {
      {"", ""},
      {"0", ""},
      {"+-!", ""},
      {"f", "chklnpqrstwz"},
      {"f-q", "chklnprstwz"},
      {"d!n", "chklprstwz!n"},
      {"!v", "!ls"},
      {"f!v", "chknpqrtwz!ls"},
      {"i-k!p", "c!p"},
      {"k-k", ""},
      {"zks", "ksz"},
      {"+0k", "k"},
      {"0+0k0-0!0", "k"},
      {"k+s", "ks"}, // a first '+' may come late, as long as no '-' or '!' came before
      {"-k!k", "!k"},
      {"x", "x"}, // unknown letters are kept
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    Permissions set(c.text);
    EXPECT_STREQ(set.getText(), c.text);
    EXPECT_TRUE(set.isSet());
    EXPECT_EQ(statesOf(set), c.states);
  }
}

TEST_F(PermissionsTest, RejectsWhatBreaksTheGrammar) {
  const char* cases[] = {
      "!q!k", "!q-k", "-k+s", "++",  "+k+", "--",  "!+",       "-+",   "K",
      " k",   "k ",   "k,s",  "k:s", "1",   "k\t", "\xc3\xa9", "f-q-",
  };
  for (const char* text : cases) {
    SCOPED_TRACE(text);
    EXPECT_THROW(Permissions{text}, Permissions::ParseException);
  }
}

TEST_F(PermissionsTest, ParseExceptionQuotesTheWholeTextWithinItsBound) {
  try {
    Permissions set("k,s");
    FAIL() << "no exception";
  } catch (const plat::Exception& e) {
    EXPECT_STREQ(e.type(), "PermissionsParse");
    EXPECT_STREQ(e.what(), "Invalid permissions string: k,s");
  }
  std::string longText = "ks" + std::string(400, 'X');
  try {
    Permissions set(longText.c_str());
    FAIL() << "no exception";
  } catch (const Permissions::ParseException& e) {
    std::string expected = "Invalid permissions string: " + longText;
    expected.resize(plat::Exception::textSize - 1);
    EXPECT_EQ(e.what(), expected);
  }
}

TEST_F(PermissionsTest, DefaultAndNullTextMeanNothingSet) {
  Permissions fresh;
  EXPECT_STREQ(fresh.getText(), "");
  EXPECT_FALSE(fresh.isSet());

  Permissions set("f");
  set.setText(nullptr);
  EXPECT_TRUE(set.equals(fresh));
  EXPECT_STREQ(set.getText(), "");
  EXPECT_FALSE(set.isSet());

  Permissions cleared("!k");
  cleared.clear();
  EXPECT_EQ(cleared.getState('k'), Unset);
  EXPECT_FALSE(cleared.isSet());
  EXPECT_STREQ(cleared.getText(), "");
}

TEST_F(PermissionsTest, ChangingALetterTurnsTheTextCanonical) {
  const struct {
    const char* text;
    char code;
    PermissionState state;
    const char* canonical;
  } cases[] = {
      {"d", 's', Deny, "chklprtwz!s"}, {"x", 'k', Allow, "kx"},  {"zks", 'z', Unset, "ks"},
      {"+0k", 'k', Allow, "k"},        {"!v", 'l', Unset, "!s"}, {"f", 'q', Unset, "chklnprstwz"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    Permissions set(c.text);
    set.setState(c.code, c.state);
    EXPECT_EQ(set.getState(c.code), c.state);
    EXPECT_STREQ(set.getText(), c.canonical);
    EXPECT_TRUE(set.isSet()) << "a given text stays given";
  }
  Permissions edited;
  edited.setState('p', Deny);
  EXPECT_STREQ(edited.getText(), "!p");
  EXPECT_FALSE(edited.isSet());
}

TEST_F(PermissionsTest, CopyKeepsStatesTextAndSetFlag) {
  Permissions original("+0k");
  Permissions copy(original);
  EXPECT_STREQ(copy.getText(), "+0k");
  EXPECT_TRUE(copy.isSet());
  copy.setState('s', Allow);
  EXPECT_STREQ(original.getText(), "+0k") << "the copy owns its text";
  EXPECT_EQ(original.getState('s'), Unset);
}

TEST_F(PermissionsTest, NormalizeReplacesAPresetByItsExpansion) {
  Permissions view("v");
  view.normalize();
  EXPECT_STREQ(view.getText(), "ls");
  Permissions fresh("v");
  EXPECT_FALSE(view.equalsText(fresh));
  EXPECT_TRUE(view.equalsAllowed(fresh));
  EXPECT_TRUE(view.equals(fresh));

  Permissions deny("!v");
  deny.normalize();
  EXPECT_STREQ(deny.getText(), "!ls");

  Permissions fromDefault;
  fromDefault.normalize();
  EXPECT_TRUE(fromDefault.isSet());
  EXPECT_STREQ(fromDefault.getText(), "");
}

TEST_F(PermissionsTest, ComparisonsDistinguishStatesFromText) {
  const struct {
    const char* a;
    const char* b;
    bool equalsAllowed, equals, equalsText, aSubsetOfB;
  } cases[] = {
      {"k", "k", true, true, true, true},     {"f", "chklnpqrstwz", true, true, false, true},
      {"ks", "sk", true, true, false, true},  {"-k", "", true, true, false, true},
      {"k", "k!s", true, false, false, true}, {"k!s", "k", true, false, false, false},
      {"!s", "", true, false, false, false},  {"", "f", false, false, false, true},
      {"k", "p", false, false, false, false}, {"!k", "k", false, false, false, false},
      {"d", "f", false, false, false, true},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.a) + " vs " + c.b);
    Permissions a(c.a), b(c.b);
    EXPECT_EQ(a.equalsAllowed(b), c.equalsAllowed);
    EXPECT_EQ(a.equals(b), c.equals);
    EXPECT_EQ(a.equalsText(b), c.equalsText);
    EXPECT_EQ(a.isSubsetOf(b), c.aSubsetOfB);
  }
}

TEST_F(PermissionsTest, AllowedLettersAndInput) {
  const struct {
    const char* text;
    bool anyAllowed, input;
  } cases[] = {
      {"", false, false}, {"!f", false, false}, {"-k", false, false}, {"x", true, false},
      {"k", true, true},  {"p", true, true},    {"i", true, true},    {"c", true, false},
      {"v", true, false}, {"!k", false, false}, {"d!k", true, true},  {"d!kp", true, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    Permissions set(c.text);
    EXPECT_EQ(set.isAnyAllowed(), c.anyAllowed);
    EXPECT_EQ(set.allowsInput(), c.input);
  }
}

// `other` given by text, or by letters set one by one (so without a text) when
// the text starts with '='.
Permissions makeOther(const char* given) {
  if (given[0] != '=')
    return Permissions(given);
  Permissions other;
  for (const char* at = given + 1; *at; ++at)
    other.setState(*at, Allow);
  return other;
}

struct CombineCase {
  const char* base;
  const char* other;
  const char* states; // canonical form of the result
  const char* text;   // getText() of the result
  bool isSet;
};

void checkCombine(const CombineCase& c, void (Permissions::*combine)(const Permissions&)) {
  SCOPED_TRACE(std::string(c.base) + " with " + c.other);
  Permissions set(c.base);
  Permissions other = makeOther(c.other);
  (set.*combine)(other);
  EXPECT_EQ(statesOf(set), c.states);
  EXPECT_STREQ(set.getText(), c.text);
  EXPECT_EQ(set.isSet(), c.isSet);
}

TEST_F(PermissionsTest, MergeAddsAndTakesOverTheTextOfAnEqualResult) {
  const CombineCase cases[] = {
      // unchanged: text and flag stay
      {"+k", "k", "k", "+k", true},
      {"!k", "k", "!k", "!k", true},
      {"d", "v", "chklprstwz", "d", true},
      // changed into something new: no text, not set
      {"k", "s", "ks", "ks", false},
      {"k", "!s", "k!s", "k!s", false},
      // changed into `other`: its text and set
      {"k", "f", "chklnpqrstwz", "f", true},
      {"k", "!k", "!k", "!k", true},
      {"0", "v", "ls", "v", true},
      // changed into `other`, which has no text: the old text must not survive
      {"k", "=ks", "ks", "ks", true},
  };
  for (const CombineCase& c : cases)
    checkCombine(c, &Permissions::merge);
  Permissions unchanged;
  unchanged.merge(Permissions());
  EXPECT_FALSE(unchanged.isSet());
}

TEST_F(PermissionsTest, RestrictLimitsAndTakesOverTheTextOfAnEqualResult) {
  const CombineCase cases[] = {
      // unchanged: text and flag stay
      {"k", "f", "k", "k", true},
      {"!s", "", "!s", "!s", true},
      {"+0k", "kp", "k", "+0k", true},
      // changed into something new: no text, not set
      {"kps", "kc", "k", "k", false},
      {"k", "kp!s", "k!s", "k!s", false},
      // changed into `other`: its text and set
      {"f", "d", "chklprstwz", "d", true},
      {"f", "!q", "!q", "!q", true},
      {"ks", "!k", "!k", "!k", true},
      // changed into `other`, which has no text: the old text must not survive
      {"ks", "=k", "k", "k", true},
  };
  for (const CombineCase& c : cases)
    checkCombine(c, &Permissions::restrict);
}

TEST_F(PermissionsTest, DescriptionNamesThePresetOfTheAllowedLetters) {
  const struct {
    const char* text;
    const char* description;
  } cases[] = {
      {"", "No access"},
      {"!q", "No access"},
      {"-f", "No access"},
      {"f", "Administrative"},
      {"chklnpqrstwz", "Administrative"},
      {"d", "Standard"},
      {"d!n", "Standard"},
      {"f-nq", "Standard"},
      {"v", "View-only"},
      {"i", "Input-only"},
      {"f-q", nullptr},
      {"ks", nullptr},
      {"x", nullptr},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    const char* description = Permissions(c.text).getDescription();
    if (c.description)
      EXPECT_STREQ(description, c.description);
    else
      EXPECT_EQ(description, nullptr);
  }
}

TEST_F(PermissionsTest, DescribeFallsBackToCustom) {
  const struct {
    const char* text;
    const char* display;
  } cases[] = {
      {"!q", "No access"},   {"v", "View-only"},  {"lsx", "Custom (lsx)"},
      {"ks", "Custom (ks)"}, {"K", "Custom (K)"}, {"!q!k", "Custom (!q!k)"},
  };
  for (const auto& c : cases)
    EXPECT_STREQ(Permissions::describe(c.text).get(), c.display) << c.text;
}

TEST(PermissionsGroupsTest, GroupsExpandToTheLettersDefinedNow) {
  EXPECT_EQ(statesOf(Permissions("f")), "ckpqs");
  EXPECT_STREQ(Permissions("ckpqs").getDescription(), "Administrative");
  FeatureLetters features;
  EXPECT_EQ(statesOf(Permissions("f")), "chklnpqrstwz");
  EXPECT_EQ(Permissions("ckpqs").getDescription(), nullptr);
}

} // namespace
} // namespace xnauth::test
