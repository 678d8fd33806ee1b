// One .po file of a catalog, as the catalog generator reads it: a header entry
// (an empty msgid whose text is "Name: value" lines), then one entry per key.
// The reader follows the string file syntax of the translations, so that what
// the build accepts is what the program reads.
#pragma once

#include "Problems.h"

#include <istream>
#include <map>
#include <string>

namespace locgen {

struct PoText {
  std::string value;
  int line = 0;            // of its msgid
  std::string englishNote; // the "#. " line: the English text it was made from
};

struct PoFile {
  std::string language; // the file's name without ".po"
  std::string path;
  int headerLine = 0; // 0 when the file has no header entry
  std::map<std::string, std::string> header;
  std::map<std::string, PoText> texts; // sorted by bytes
};

/// The language a file holds, by its name ("po/de.po" holds "de"), or "" for
/// a name that does not end in ".po".
std::string languageOf(const std::string& path);

/// A key, or a catalog's name: letters, digits and '_', not starting with a digit.
bool isKey(const std::string& name);

PoFile readPoFile(const std::string& path, Problems& problems);

/// Reads a file's content from `in`; `path` names it in problems.
PoFile parsePo(const std::string& path, std::istream& in, Problems& problems);

} // namespace locgen
