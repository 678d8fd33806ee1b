// The catalog generator, a tool of the build. It reads the .po files of one
// catalog, one file per language named after it ("de.po"), checks them
// (CatalogChecks.h), and writes
//   - a header of key constants, so that code naming a key that the English
//     catalog lacks does not compile, and
//   - a table of all texts, language by language with keys sorted, that
//     registers itself with the translations at static initialisation.
// Any problem fails the build with the file and line.
//
//   locgen --catalog <name> [--keys <header> [--register]] [--table <source>] <file.po>...
#include "CatalogChecks.h"
#include "PoFile.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

using locgen::PoFile;

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
bool writeIfChanged(const std::string& path, const std::string& content) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream existing;
  existing << in.rdbuf();
  if (in && existing.str() == content)
    return true;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << content;
  if (!out)
    std::cerr << path << ": cannot be written\n";
  return static_cast<bool>(out);
}

std::string banner(const std::string& what, const std::string& catalog) {
  return "// " + what + " of the translation catalog \"" + catalog +
         "\", generated from its .po files\n// by the catalog generator: edit those, not this.\n";
}

std::string keysHeader(const std::string& catalog, const PoFile& english, bool registers) {
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

std::string tableSource(const std::string& catalog, const std::vector<PoFile>& languages) {
  std::string out = banner("Texts", catalog) +
                    "#include \"loc/Localize.h\"\n\nnamespace {\n\nconstexpr loc::CatalogEntry "
                    "entries[] = {\n";
  for (const PoFile& language : languages) {
    for (const auto& [key, text] : language.texts)
      out +=
          "    {\"" + language.language + "\", \"" + key + "\", " + cLiteral(text.value) + "},\n";
  }
  out += "};\n\n} // namespace\n\nnamespace loc::catalog {\n\nvoid " + catalog +
         "() {\n  static int calls = 0;\n  if (calls++ == 0)\n"
         "    Localize::instance().addCatalog(entries, sizeof entries / sizeof entries[0]);\n}\n\n"
         "} // namespace loc::catalog\n\nnamespace {\n[[maybe_unused]] const bool registered = "
         "(loc::catalog::" +
         catalog + "(), true);\n}\n";
  return out;
}

} // namespace

int main(int argc, char** argv) {
  std::string catalog, keysPath, tablePath;
  bool registers = false;
  std::vector<std::string> paths;
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
    else if (!locgen::languageOf(argument).empty())
      paths.push_back(argument);
    else {
      std::cerr << "locgen: unexpected argument " << argument << '\n';
      return 2;
    }
  }
  if (!locgen::isKey(catalog) || paths.empty()) {
    std::cerr << "usage: locgen --catalog <name> [--keys <header> [--register]] "
                 "[--table <source>] <language>.po...\n";
    return 2;
  }
  locgen::Problems problems;
  std::vector<PoFile> languages;
  for (const std::string& path : paths)
    languages.push_back(locgen::readPoFile(path, problems));
  std::sort(languages.begin(), languages.end(),
            [](const PoFile& a, const PoFile& b) { return a.language < b.language; });
  for (locgen::Problem& problem : locgen::checkCatalog(languages))
    problems.push_back(std::move(problem));
  for (const locgen::Problem& problem : problems) {
    std::cerr << (problem.path.empty() ? "locgen: catalog " + catalog : problem.path);
    if (problem.line > 0)
      std::cerr << ':' << problem.line;
    std::cerr << ": " << problem.message << '\n';
  }
  if (!problems.empty())
    return 1;
  const PoFile& english = *std::find_if(languages.begin(), languages.end(),
                                        [](const PoFile& file) { return file.language == "en"; });
  bool written = true;
  if (!keysPath.empty())
    written = writeIfChanged(keysPath, keysHeader(catalog, english, registers)) && written;
  if (!tablePath.empty())
    written = writeIfChanged(tablePath, tableSource(catalog, languages)) && written;
  return written ? 0 : 1;
}
