#include "PoFile.h"

#include "Utf8.h"

#include <algorithm>
#include <fstream>

namespace locgen {

namespace {

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

// The "Name: value" lines of a header entry.
void readHeader(PoFile& file, const std::string& text, Problems& problems) {
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = std::min(text.find('\n', start), text.size());
    std::string field = text.substr(start, end - start);
    std::size_t colon = field.find(": ");
    if (colon == std::string::npos || colon == 0)
      problems.push_back({file.path, file.headerLine,
                          "header line \"" + field + "\" is not of the form \"Name: value\""});
    else
      file.header[field.substr(0, colon)] = field.substr(colon + 2);
    start = end + 1;
  }
}

} // namespace

bool isKey(const std::string& key) {
  if (key.empty() || (key[0] >= '0' && key[0] <= '9'))
    return false;
  return std::all_of(key.begin(), key.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
  });
}

std::string languageOf(const std::string& path) {
  std::size_t slash = path.find_last_of("/\\");
  std::string name = path.substr(slash == std::string::npos ? 0 : slash + 1);
  return name.size() > 3 && name.compare(name.size() - 3, 3, ".po") == 0
             ? name.substr(0, name.size() - 3)
             : std::string();
}

PoFile readPoFile(const std::string& path, Problems& problems) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    problems.push_back({path, 0, "cannot be read"});
    return PoFile{languageOf(path), path, 0, {}, {}};
  }
  return parsePo(path, in, problems);
}

PoFile parsePo(const std::string& path, std::istream& in, Problems& problems) {
  PoFile file{languageOf(path), path, 0, {}, {}};
  auto fail = [&](int line, const std::string& message) {
    problems.push_back({path, line, message});
  };
  enum { BeforeId, InId, InText } state = BeforeId;
  std::string key, text, note;
  int number = 0, entryLine = 0;
  bool firstEntry = true;
  auto finish = [&] {
    if (state == InId) {
      fail(number, "Expected msgstr");
    } else if (state == InText && key.empty()) {
      if (!firstEntry)
        fail(entryLine, "the header entry (empty msgid) must be the first entry");
      else if (!isValidUtf8(text))
        fail(entryLine, "Bad UTF-8 in the header");
      else {
        file.headerLine = entryLine;
        readHeader(file, text, problems);
      }
    } else if (state == InText) {
      if (!isKey(key))
        fail(entryLine, "key \"" + key + "\" is not made of letters, digits and '_'");
      else if (!isValidUtf8(text))
        fail(entryLine, "Bad UTF-8 in " + key);
      else if (!file.texts.emplace(key, PoText{text, entryLine, note}).second)
        fail(entryLine, "key " + key + " appears twice");
    }
    if (state == InText)
      firstEntry = false;
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
      fail(number, error);
  }
  finish();
  return file;
}

} // namespace locgen
