// The catalog generator's checks: what a translation must keep of its English
// text, the header that translators' tools need, and the typographic
// conventions of each language, with the legitimate texts they must let pass.
#include "CatalogChecks.h"

#include "LanguageConventions.h"
#include "PoFile.h"
#include "Typography.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

std::string joined(const std::vector<std::string>& messages) {
  std::string out;
  for (const std::string& message : messages)
    out += (out.empty() ? "" : " | ") + message;
  return out;
}

TEST(CatalogChecks, TypographyOfEachLanguage) {
  struct Case {
    const char* language;
    const char* english;
    const char* text;
    const char* problem; // "" when the text keeps the conventions
  };
  const Case cases[] = {
      {"fr", "Name:", "Nom\u00A0:", ""},
      {"fr", "Name:", "Nom :", "ordinary space before ':': make it a no-break space (U+00A0)"},
      {"fr", "Name:", "Nom:", "':' needs a no-break space (U+00A0) before it"},
      {"fr", "Turn off; note", "Décochez ; notez", "ordinary space before ';'"},
      {"fr", "Really?!", "Vraiment\u00A0?!", ""},
      {"fr", "At 12:00 see https://x/?a=1 for USER:PERMISSIONS, <log>:<level>, %1$S:%2$S",
       "À 12:00 voir https://x/?a=1 pour UTILISATEUR:AUTORISATIONS, <journal>:<niveau>, %1$S:%2$S",
       ""},
      {"fr", "\"Allow\" of %S", "«\u00A0Autoriser\u00A0» d'%S", ""},
      {"fr", "\"Allow\"", "« Autoriser\u00A0»", "'«' needs a no-break space (U+00A0) after it"},
      {"fr", "\"Allow\"", "«\u00A0Autoriser»", "'»' needs a no-break space (U+00A0) before it"},
      {"de", "Name:", "Name :", "no space before ':'"},
      {"de", "Bad argument '%S'.", "Ungültiges Argument \u201E%S\u201C.", ""},
      {"de", "Bad argument '%S'.", "Ungültiges Argument '%S'.",
       "straight quotation mark \"'\": quote with \u201E\u2026\u201C"},
      {"de", "unmatched \"[\"", "nicht geschlossenes \"[\"",
       "straight quotation mark '\"': quote with \u201E\u2026\u201C"},
      {"de", "unmatched \"[\"", "nicht geschlossenes \u201C[\u201D",
       "quotation mark '\u201C' out of place"},
      {"de", "See <a href=\"%S\">%S</a>", "Siehe <a href=\"%S\">%S</a>", ""},
      {"es", "Continue?", "\u00BFContinuar?", ""},
      {"es", "Continue?", "Continuar?", "'?' without its opening '\u00BF'"},
      {"es", "\"[\" in host", "\u00AB[\u00BB en el host", ""},
      {"es", "\"[\" in host", "\u00AB [ \u00BB en el host", "no space after '\u00AB'"},
      {"pt", "\"Allow\" can", "\u201CPermitir pode", "quotation not closed"},
      {"zh", "Group UUID:", "组 UUID\uFF1A", ""},
      {"zh", "Group UUID:", "组 UUID:", "half-width ':' in Chinese text: write '\uFF1A'"},
      {"zh", "Done.", "完成.", "half-width '.' in Chinese text"},
      {"zh", "Loading...", "正在加载...", ""},
      {"zh", "the form USER:PERMISSIONS", "格式为 <用户或组>:<权限>", ""},
      {"zh", "%1$S [resolved as %2$S]", "%1$S [解析为 %2$S]", "half-width bracket '['"},
      {"zh", "unmatched \"[\" in host", "主机中的 \u201C[\u201D不匹配", "space beside full-width"},
      {"zh", "&Add...", "添加(&A)...", ""},
      {"zh", "&Next >", "下一步(&N) >", ""},
      {"zh", "&Name:", "名称(&N)\uFF1A", ""},
      {"zh", "&Add...", "(&A)添加...", "a Chinese mnemonic is \"(&A)\" at the end of the text"},
      {"zh", "&Add", "添加(&D)", "a Chinese mnemonic is \"(&A)\""},
  };
  for (const Case& c : cases) {
    const locgen::LanguageConventions* conventions = locgen::conventionsOf(c.language);
    ASSERT_NE(conventions, nullptr) << c.language;
    std::string problems = joined(locgen::typographyProblems(*conventions, c.text, c.english));
    if (*c.problem)
      EXPECT_NE(problems.find(c.problem), std::string::npos) << c.text << " gave: " << problems;
    else
      EXPECT_EQ(problems, "") << c.text;
  }
}

// A header as translators' tools write it, for `locale` with its plural forms.
std::string header(const std::string& locale, const std::string& pluralForms) {
  return "msgid \"\"\nmsgstr \"\"\n\"Language: " + locale +
         "\\n\"\n\"Content-Type: text/plain; charset=UTF-8\\n\"\n\"Plural-Forms: " + pluralForms +
         "\\n\"\n\n";
}

std::string problemsOf(const std::string& path, const std::string& content) {
  locgen::Problems problems;
  std::istringstream englishIn(header("en", "nplurals=2; plural=(n != 1);") +
                               "msgid \"t_add\"\nmsgstr \"&Add %1$S to %2$S\"\n\n"
                               "msgid \"t_both\"\nmsgstr \"Users && &Groups\"\n");
  std::istringstream in(content);
  std::vector<locgen::PoFile> files{locgen::parsePo("en.po", englishIn, problems),
                                    locgen::parsePo(path, in, problems)};
  for (const locgen::Problem& problem : locgen::checkCatalog(files))
    problems.push_back(problem);
  std::vector<std::string> messages;
  for (const locgen::Problem& problem : problems)
    messages.push_back(problem.path + ":" + std::to_string(problem.line) + ": " + problem.message);
  return joined(messages);
}

TEST(CatalogChecks, FilesAgainstEnglish) {
  const std::string german = header("de_DE", "nplurals=2; plural=(n != 1);");
  const std::string add = "#. &Add %1$S to %2$S\nmsgid \"t_add\"\n";
  const std::string both =
      "\n#. Users && &Groups\nmsgid \"t_both\"\nmsgstr \"Benutzer && &Gruppen\"\n";
  struct Case {
    const char* path;
    std::string content;
    const char* problem; // "" for a sound file
  };
  const Case cases[] = {
      {"de.po", german + add + "msgstr \"%1$S zu %2$S &hinzufügen\"\n" + both, ""},
      {"zh.po",
       header("zh_CN", "nplurals=1; plural=0;") + add + "msgstr \"将 %1$S 添加到 %2$S(&A)\"\n" +
           "\n#. Users && &Groups\nmsgid \"t_both\"\nmsgstr \"用户和组(&G)\"\n",
       ""},
      {"de.po", add + "msgstr \"%1$S zu %2$S &hinzufügen\"\n" + both,
       "de.po:0: has no header entry"},
      {"de.po",
       header("de_DE", "nplurals=2; plural=(n > 1);") + add +
           "msgstr \"%1$S zu %2$S &hinzufügen\"\n" + both,
       "de.po:1: header has \"Plural-Forms: nplurals=2; plural=(n > 1);\", not \"nplurals=2; "
       "plural=(n != 1);\""},
      {"de.po", add + "msgstr \"%1$S zu %2$S &hinzufügen\"\n" + both + "\n" + german,
       "the header entry (empty msgid) must be the first entry"},
      {"de.po", german + "msgid \"t_add\"\nmsgstr \"%1$S zu %2$S &hinzufügen\"\n" + both,
       "de.po:7: t_add has no \"#. \" line"},
      {"de.po", german + "#. Add\nmsgid \"t_add\"\nmsgstr \"%1$S zu %2$S &hinzufügen\"\n" + both,
       "t_add was translated from an older English text"},
      {"de.po", german + add + "msgstr \"%S zu %2$S &hinzufügen\"\n" + both,
       "t_add does not keep the placeholders of English"},
      {"de.po", german + add + "msgstr \"%1$S zu %2$S hinzufügen\"\n" + both,
       "t_add does not keep the '&' marks of English"},
      {"de.po", german + add + "msgstr \"%1$S zu %2$S & hinzufügen\"\n" + both,
       "t_add: an '&' mark stands before a letter or digit"},
      {"de.po", german + add + "msgstr \"%1$S zu %2$S &hinzufügen\"\n",
       "de.po:0: has no text for t_both"},
      {"de.po",
       german + add + "msgstr \"%1$S zu %2$S &hinzufügen\"\n" + both +
           "\nmsgid \"t_x\"\nmsgstr \"X\"\n",
       "t_x is not in the English catalog"},
      {"de.po", german + add + "msgstr \"%1$S zu \\q\"\n" + both, "de.po:9: Invalid escape code"},
      {"xx.po", german + add + "msgstr \"%1$S zu %2$S &x\"\n" + both,
       "no conventions for the language \"xx\""},
  };
  for (const Case& c : cases) {
    std::string problems = problemsOf(c.path, c.content);
    if (*c.problem)
      EXPECT_NE(problems.find(c.problem), std::string::npos) << c.content << "\ngave: " << problems;
    else
      EXPECT_EQ(problems, "") << c.content;
  }
}

} // namespace
