#include "CatalogChecks.h"

#include "LanguageConventions.h"
#include "Typography.h"
#include "Utf8.h"

#include <algorithm>

namespace locgen {

namespace {

// The conversions of a format text ("%%", "%S", "%1$S", "%+D", ...), sorted.
std::vector<std::string> placeholders(const std::string& text) {
  std::vector<std::string> found;
  for (std::size_t pos = text.find('%'); pos != std::string::npos; pos = text.find('%', pos)) {
    std::size_t end = pos + 1;
    if (end >= text.size() || text[end] != '%')
      end = std::min(text.find_first_not_of("+.0123456789$", end), text.size() - 1);
    found.push_back(text.substr(pos, end + 1 - pos));
    pos = end + 1;
  }
  std::sort(found.begin(), found.end());
  return found;
}

// The characters that single '&' marks stand before ('\0' at the end of the
// text); "&&" is a literal ampersand, which a translation may write in words.
std::u32string markedCharacters(const std::string& text) {
  std::u32string points = codePoints(text), marked;
  for (std::size_t mark : markPositions(points))
    marked += mark + 1 < points.size() ? points[mark + 1] : U'\0';
  return marked;
}

void checkHeader(const PoFile& file, const LanguageConventions& conventions, Problems& problems) {
  const std::pair<const char*, std::string_view> expected[] = {
      {"Language", conventions.locale},
      {"Content-Type", "text/plain; charset=UTF-8"},
      {"Plural-Forms", conventions.pluralForms},
  };
  if (file.headerLine == 0) {
    problems.push_back({file.path, 0,
                        "has no header entry (msgid \"\") with Language, Content-Type and "
                        "Plural-Forms; see TRANSLATORS.md"});
    return;
  }
  for (const auto& [name, value] : expected) {
    auto found = file.header.find(name);
    if (found == file.header.end())
      problems.push_back(
          {file.path, file.headerLine,
           "header lacks \"" + std::string(name) + ": " + std::string(value) + "\""});
    else if (found->second != value)
      problems.push_back({file.path, file.headerLine,
                          "header has \"" + std::string(name) + ": " + found->second +
                              "\", not \"" + std::string(value) + "\""});
  }
}

void checkAgainstEnglish(const PoFile& english, const PoFile& file,
                         const LanguageConventions& conventions, Problems& problems) {
  auto fail = [&](int line, const std::string& message) {
    problems.push_back({file.path, line, message});
  };
  for (const auto& [key, source] : english.texts) {
    auto found = file.texts.find(key);
    if (found == file.texts.end()) {
      fail(0, "has no text for " + key);
      continue;
    }
    const PoText& translated = found->second;
    std::string note = source.value;
    std::replace(note.begin(), note.end(), '\n', ' ');
    if (translated.englishNote.empty())
      fail(translated.line, key + " has no \"#. \" line with the English it was made from");
    else if (translated.englishNote != note)
      fail(translated.line, key + " was translated from an older English text");
    if (placeholders(translated.value) != placeholders(source.value))
      fail(translated.line, key + " does not keep the placeholders of English");
    std::u32string marked = markedCharacters(translated.value);
    if (marked.size() != markedCharacters(source.value).size())
      fail(translated.line, key + " does not keep the '&' marks of English");
    else if (std::any_of(marked.begin(), marked.end(),
                         [](char32_t c) { return !isLetterOrDigit(c); }))
      fail(translated.line, key + ": an '&' mark stands before a letter or digit");
    for (const std::string& problem :
         typographyProblems(conventions, translated.value, source.value))
      fail(translated.line, key + ": " + problem);
  }
  for (const auto& [key, text] : file.texts) {
    if (!english.texts.count(key))
      fail(text.line, key + " is not in the English catalog");
  }
}

} // namespace

Problems checkCatalog(const std::vector<PoFile>& files) {
  Problems problems;
  auto english = std::find_if(files.begin(), files.end(),
                              [](const PoFile& file) { return file.language == "en"; });
  if (english == files.end()) {
    problems.push_back({"", 0, "the catalog has no en.po"});
    return problems;
  }
  for (const PoFile& file : files) {
    const LanguageConventions* conventions = conventionsOf(file.language);
    if (!conventions) {
      problems.push_back({file.path, 0,
                          "no conventions for the language \"" + file.language +
                              "\": add them to the generator and to TRANSLATORS.md"});
      continue;
    }
    checkHeader(file, *conventions, problems);
    if (&file != &*english)
      checkAgainstEnglish(*english, file, *conventions, problems);
  }
  return problems;
}

} // namespace locgen
