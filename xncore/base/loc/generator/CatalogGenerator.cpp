// The catalog generator, a tool of the build. It reads the .po files of one
// catalog, one file per language named after it ("de.po"), checks them
// against the English file, and writes
//   - a header of key constants, so that code naming a key that the English
//     catalog lacks does not compile, and
//   - a table of all texts, language by language with keys sorted, that
//     registers itself with the translations at static initialisation.
// A translation must have exactly the keys of English, and each text must keep
// the placeholders and mnemonics of its English text; anything else fails the
// build with the file and line. A translation's "#. " comment, when present,
// is the English text it was made from, and must still be English's.
//
//   locgen --catalog <name> [--keys <header> [--register]] [--table <source>] <file.po>...
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Text {
  std::string value;
  int line = 0;
  std::string englishNote; // a translator's "#. " line: the English text it was made from
};

struct Language {
  std::string name;
  std::string path;
  std::map<std::string, Text> texts; // sorted by bytes
};

int errors = 0;

void fail(const std::string& where, int line, const std::string& message) {
  std::cerr << where;
  if (line > 0)
    std::cerr << ':' << line;
  std::cerr << ": " << message << '\n';
  ++errors;
}

bool isValidUtf8(const std::string& text) {
  for (std::size_t i = 0; i < text.size();) {
    auto byte = static_cast<unsigned char>(text[i]);
    int length = byte < 0x80         ? 1
                 : (byte >> 5) == 6  ? 2
                 : (byte >> 4) == 14 ? 3
                 : (byte >> 3) == 30 ? 4
                                     : 0;
    if (length == 0 || i + length > text.size())
      return false;
    unsigned codePoint = length == 1 ? byte : byte & (0x7F >> length);
    for (int k = 1; k < length; ++k) {
      auto next = static_cast<unsigned char>(text[i + k]);
      if ((next & 0xC0) != 0x80)
        return false;
      codePoint = codePoint << 6 | (next & 0x3F);
    }
    static constexpr unsigned least[] = {0, 0, 0x80, 0x800, 0x10000};
    if (codePoint < least[length] || codePoint > 0x10FFFF ||
        (codePoint >= 0xD800 && codePoint <= 0xDFFF))
      return false;
    i += length;
  }
  return true;
}

// The character that a backslash and `c` stand for, or 0.
char unescape(char c) {
  switch (c) {
  case '"':
  case '\'':
  case '?':
  case '\\':
    return c;
  case 'a':
    return '\a';
  case 'b':
    return '\b';
  case 'f':
    return '\f';
  case 'n':
    return '\n';
  case 'r':
    return '\r';
  case 't':
    return '\t';
  case 'v':
    return '\v';
  default:
    return 0;
  }
}

// Parses the quoted string at `pos` in `line` and appends it to `target`.
bool readQuoted(const std::string& line, std::size_t pos, std::string& target, std::string& error) {
  while (pos < line.size() && line[pos] == ' ')
    ++pos;
  if (pos >= line.size() || line[pos] != '"') {
    error = "Junk preceding string data";
    return false;
  }
  for (++pos; pos < line.size(); ++pos) {
    char c = line[pos];
    if (c == '"') {
      if (pos + 1 != line.size()) {
        error = "Junk following string data";
        return false;
      }
      return true;
    }
    if (c == '\\') {
      if (++pos >= line.size()) {
        error = "Invalid escape at end";
        return false;
      }
      c = unescape(line[pos]);
      if (!c) {
        error = "Invalid escape code";
        return false;
      }
    }
    target += c;
  }
  error = "Missing terminator";
  return false;
}

bool isKey(const std::string& key) {
  if (key.empty() || (key[0] >= '0' && key[0] <= '9'))
    return false;
  return std::all_of(key.begin(), key.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  });
}

void readCatalogFile(Language& language) {
  std::ifstream in(language.path, std::ios::binary);
  if (!in) {
    fail(language.path, 0, "cannot be read");
    return;
  }
  enum { BeforeId, InId, InText } state = BeforeId;
  std::string key, text, note;
  int number = 0, entryLine = 0;
  auto finish = [&] {
    if (state == InId)
      fail(language.path, number, "Expected msgstr");
    else if (state == InText && !key.empty()) {
      if (!isKey(key))
        fail(language.path, entryLine,
             "key \"" + key + "\" is not made of letters, digits and '_'");
      else if (!isValidUtf8(text))
        fail(language.path, entryLine, "Bad UTF-8 in " + key);
      else if (!language.texts.emplace(key, Text{text, entryLine, note}).second)
        fail(language.path, entryLine, "key " + key + " appears twice");
    }
    key.clear();
    text.clear();
    note.clear();
    state = BeforeId;
  };
  std::string line;
  while (std::getline(in, line)) {
    ++number;
    if (!line.empty() && line.back() == '\r')
      line.pop_back();
    std::string error;
    if (line.empty()) {
      finish();
    } else if (line[0] == '#') {
      if (line.compare(0, 3, "#. ") == 0 && state == BeforeId)
        note = line.substr(3);
    } else if (line[0] == '"') {
      if (state == BeforeId)
        error = "Bad command or string";
      else
        readQuoted(line, 0, state == InId ? key : text, error);
    } else {
      std::size_t space = line.find(' ');
      std::string command = line.substr(0, space);
      const char* expected = state == BeforeId ? "msgid" : "msgstr";
      if (space == std::string::npos || state == InText)
        error = "Bad command or string";
      else if (command != expected)
        error = std::string("Expected ") + expected;
      else {
        if (state == BeforeId)
          entryLine = number;
        state = state == BeforeId ? InId : InText;
        readQuoted(line, space, state == InId ? key : text, error);
      }
    }
    if (!error.empty())
      fail(language.path, number, error);
  }
  finish();
}

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

// Counts of mnemonic markers ("&" before a letter) and of escaped ampersands ("&&").
std::pair<int, int> mnemonics(const std::string& text) {
  int marks = 0, escaped = 0;
  for (std::size_t pos = 0; pos < text.size(); ++pos) {
    if (text[pos] != '&')
      continue;
    if (pos + 1 < text.size() && text[pos + 1] == '&') {
      ++escaped;
      ++pos;
    } else {
      ++marks;
    }
  }
  return {marks, escaped};
}

void checkAgainstEnglish(const Language& english, const Language& language) {
  for (const auto& [key, text] : english.texts) {
    auto found = language.texts.find(key);
    if (found == language.texts.end()) {
      fail(language.path, 0, "has no text for " + key);
      continue;
    }
    const Text& translated = found->second;
    std::string english = text.value;
    std::replace(english.begin(), english.end(), '\n', ' ');
    if (!translated.englishNote.empty() && translated.englishNote != english)
      fail(language.path, translated.line, key + " was translated from an older English text");
    if (placeholders(translated.value) != placeholders(text.value))
      fail(language.path, translated.line, key + " does not keep the placeholders of English");
    if (mnemonics(translated.value) != mnemonics(text.value))
      fail(language.path, translated.line, key + " does not keep the '&' marks of English");
  }
  for (const auto& [key, text] : language.texts) {
    if (!english.texts.count(key))
      fail(language.path, text.line, key + " is not in the English catalog");
  }
}

std::string cLiteral(const std::string& text) {
  std::string out = "\"";
  char octal[8];
  for (char c : text) {
    auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += c;
    } else if (c == '\n') {
      out += "\\n";
    } else if (byte < 0x20 || byte == 0x7F) {
      std::snprintf(octal, sizeof octal, "\\%03o", byte);
      out += octal;
    } else {
      out += c; // UTF-8 goes through as it stands
    }
  }
  return out + '"';
}

// Leaves an unchanged file alone, so that what includes it is not rebuilt.
void writeIfChanged(const std::string& path, const std::string& content) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream existing;
  existing << in.rdbuf();
  if (in && existing.str() == content)
    return;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << content;
  if (!out)
    fail(path, 0, "cannot be written");
}

std::string banner(const std::string& what, const std::string& catalog) {
  return "// " + what + " of the translation catalog \"" + catalog +
         "\", generated from its .po files\n// by the catalog generator: edit those, not this.\n";
}

std::string keysHeader(const std::string& catalog, const Language& english, bool registers) {
  std::string out = banner("Keys", catalog) + "#pragma once\n\nnamespace textkey {\n";
  for (const auto& [key, text] : english.texts)
    out += "inline constexpr char " + key + "[] = \"" + key + "\";\n";
  out += "} // namespace textkey\n";
  if (registers) {
    out +=
        "\nnamespace loc::catalog {\nvoid " + catalog +
        "();\n}\n\nnamespace {\n// In place before any static object of this file reads a text.\n"
        "[[maybe_unused]] const bool " +
        catalog + "CatalogRegistered = (::loc::catalog::" + catalog + "(), true);\n}\n";
  }
  return out;
}

std::string tableSource(const std::string& catalog, const std::vector<Language>& languages) {
  std::string out = banner("Texts", catalog) +
                    "#include \"loc/Localize.h\"\n\nnamespace {\n\nconstexpr loc::CatalogEntry "
                    "entries[] = {\n";
  for (const Language& language : languages) {
    for (const auto& [key, text] : language.texts)
      out += "    {\"" + language.name + "\", \"" + key + "\", " + cLiteral(text.value) + "},\n";
  }
  out += "};\n\n} // namespace\n\nnamespace loc::catalog {\n\nvoid " + catalog +
         "() {\n  static int calls = 0;\n  if (calls++ == 0)\n"
         "    Localize::instance().addCatalog(entries, sizeof entries / sizeof entries[0]);\n}\n\n"
         "} // namespace loc::catalog\n\nnamespace {\n[[maybe_unused]] const bool registered = "
         "(loc::catalog::" +
         catalog + "(), true);\n}\n";
  return out;
}

std::string languageOf(const std::string& path) {
  std::size_t slash = path.find_last_of("/\\");
  std::string name = path.substr(slash == std::string::npos ? 0 : slash + 1);
  return name.size() > 3 && name.compare(name.size() - 3, 3, ".po") == 0
             ? name.substr(0, name.size() - 3)
             : std::string();
}

} // namespace

int main(int argc, char** argv) {
  std::string catalog, keysPath, tablePath;
  bool registers = false;
  std::vector<Language> languages;
  for (int i = 1; i < argc; ++i) {
    std::string argument = argv[i];
    if (argument == "--catalog" && i + 1 < argc)
      catalog = argv[++i];
    else if (argument == "--keys" && i + 1 < argc)
      keysPath = argv[++i];
    else if (argument == "--table" && i + 1 < argc)
      tablePath = argv[++i];
    else if (argument == "--register")
      registers = true;
    else if (!languageOf(argument).empty())
      languages.push_back(Language{languageOf(argument), argument, {}});
    else {
      std::cerr << "locgen: unexpected argument " << argument << '\n';
      return 2;
    }
  }
  if (!isKey(catalog) || languages.empty()) {
    std::cerr << "usage: locgen --catalog <name> [--keys <header> [--register]] "
                 "[--table <source>] <language>.po...\n";
    return 2;
  }
  std::sort(languages.begin(), languages.end(),
            [](const Language& a, const Language& b) { return a.name < b.name; });
  for (Language& language : languages)
    readCatalogFile(language);
  auto english = std::find_if(languages.begin(), languages.end(),
                              [](const Language& language) { return language.name == "en"; });
  if (english == languages.end()) {
    std::cerr << "locgen: catalog " << catalog << " has no en.po\n";
    return 1;
  }
  for (const Language& language : languages) {
    if (&language != &*english)
      checkAgainstEnglish(*english, language);
  }
  if (errors)
    return 1;
  if (!keysPath.empty())
    writeIfChanged(keysPath, keysHeader(catalog, *english, registers));
  if (!tablePath.empty())
    writeIfChanged(tablePath, tableSource(catalog, languages));
  return errors ? 1 : 0;
}
