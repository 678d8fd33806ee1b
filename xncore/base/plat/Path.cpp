#include "plat/Path.h"

#include "plat/DString.h"
#include "plat/FileSystem.h"
#include "plat/StringUtils.h"

#include <cstring>
#include <string_view>
#include <vector>

namespace plat {

namespace {

bool isDriveLetter(char ch) noexcept {
  return (ch >= 'A' && ch <= 'Z') || (ch >= 'a' && ch <= 'z');
}

// Bytes up to the next separator or the end.
int elementLength(const char* text, PathStyle style) noexcept {
  int length = 0;
  while (text[length] && !isPathSeparator(text[length], style))
    ++length;
  return length;
}

bool isWindowsSeparator(char ch) noexcept {
  return ch == '\\' || ch == '/';
}

// The extended (\\?\) and device (\\.\) forms, which are taken literally.
bool isLiteralForm(const char* path, PathStyle style) noexcept {
  return style == PathStyle::Windows && isWindowsSeparator(path[0]) &&
         isWindowsSeparator(path[1]) && (path[2] == '?' || path[2] == '.') &&
         isWindowsSeparator(path[3]);
}

// "C:" without a separator: relative to that drive's current directory.
bool isDriveRelative(const char* path, int rootLength, PathStyle style) noexcept {
  return style == PathStyle::Windows && rootLength == 2 && path[1] == ':';
}

// "server\share" of a UNC path: the server, and the share when there is one.
int uncRootLength(const char* server) noexcept {
  int length = elementLength(server, PathStyle::Windows);
  if (isWindowsSeparator(server[length]))
    length += 1 + elementLength(server + length + 1, PathStyle::Windows);
  return length;
}

int windowsRootLength(const char* path) noexcept {
  if (isLiteralForm(path, PathStyle::Windows)) {
    const char* rest = path + 4;
    if (path[2] == '?' && startsWithNoCase(rest, "UNC") && isWindowsSeparator(rest[3]))
      return 8 + uncRootLength(rest + 4);
    if (path[2] == '?' && isDriveLetter(rest[0]) && rest[1] == ':')
      return 6;
    return 4 + elementLength(rest, PathStyle::Windows);
  }
  if (isWindowsSeparator(path[0]) && isWindowsSeparator(path[1]))
    return 2 + uncRootLength(path + 2);
  if (isDriveLetter(path[0]) && path[1] == ':')
    return isWindowsSeparator(path[2]) ? 3 : 2;
  return isWindowsSeparator(path[0]) ? 1 : 0;
}

int posixRootLength(const char* path) noexcept {
  int length = 0;
  while (path[length] == '/')
    ++length;
  return length;
}

// End of `path` without trailing separators, but never inside the root.
int trimmedEnd(const char* path, int rootLength, PathStyle style) noexcept {
  int end = static_cast<int>(std::strlen(path));
  while (end > rootLength && isPathSeparator(path[end - 1], style))
    --end;
  return end;
}

// Start of the last element that ends at `end`.
int lastElementStart(const char* path, int rootLength, int end, PathStyle style) noexcept {
  int start = end;
  while (start > rootLength && !isPathSeparator(path[start - 1], style))
    --start;
  return start;
}

bool isDotElement(std::string_view element) noexcept {
  return element == "." || element == "..";
}

void appendView(DString& out, std::string_view text) {
  out.append(text.data(), static_cast<int>(text.size()));
}

// The names that Windows reserves for devices, in any case and with any extension.
constexpr const char* reservedNames[] = {
    "CON",  "PRN",  "AUX",  "NUL",  "COM1", "COM2", "COM3", "COM4", "COM5", "COM6", "COM7",
    "COM8", "COM9", "LPT1", "LPT2", "LPT3", "LPT4", "LPT5", "LPT6", "LPT7", "LPT8", "LPT9"};

bool isUnsafeChar(char ch) noexcept {
  unsigned char byte = static_cast<unsigned char>(ch);
  return byte < 32 || byte == 127 || std::strchr("\\/:*?\"<>|", ch) != nullptr;
}

} // namespace

char pathSeparator(PathStyle style) noexcept {
  return style == PathStyle::Windows ? '\\' : '/';
}

bool isPathSeparator(char ch, PathStyle style) noexcept {
  return ch == '/' || (style == PathStyle::Windows && ch == '\\');
}

int pathRootLength(const char* path, PathStyle style) noexcept {
  if (!path)
    return 0;
  return style == PathStyle::Windows ? windowsRootLength(path) : posixRootLength(path);
}

String pathNormalise(const char* path, int* rootLength, PathStyle style) {
  int root = pathRootLength(path, style);
  if (rootLength)
    *rootLength = root;
  if (!path || isLiteralForm(path, style))
    return String(path);
  if (!*path)
    return String("");

  const char separator = pathSeparator(style);
  DString out;
  if (style == PathStyle::Posix && root > 0)
    out.append("/");
  else if (style == PathStyle::Windows)
    for (int i = 0; i < root; ++i)
      out.append(isPathSeparator(path[i], style) ? &separator : path + i, 1);
  int outRoot = out.length();

  // Above a true root ".." leads nowhere; a relative path keeps it.
  bool anchored = root > 0 && !isDriveRelative(path, root, style);
  std::vector<std::string_view> elements;
  for (const char* cursor = path + root; *cursor;) {
    std::string_view element(cursor, static_cast<std::size_t>(elementLength(cursor, style)));
    if (element == "..") {
      if (!elements.empty() && elements.back() != "..")
        elements.pop_back();
      else if (!anchored)
        elements.push_back(element);
    } else if (!element.empty() && element != ".") {
      elements.push_back(element);
    }
    cursor += element.size();
    while (isPathSeparator(*cursor, style))
      ++cursor;
  }

  // A UNC root ends with the share's name, so its first element needs a separator.
  bool separatorAfterRoot = outRoot > 0 && !isPathSeparator(out.get()[outRoot - 1], style) &&
                            !isDriveRelative(path, root, style);
  for (std::size_t i = 0; i < elements.size(); ++i) {
    if (i > 0 || separatorAfterRoot)
      out.append(&separator, 1);
    appendView(out, elements[i]);
  }
  if (out.length() == 0)
    out.append(".");
  if (rootLength)
    *rootLength = outRoot;
  return out.takeString();
}

bool pathIsAbsolute(const char* path, PathStyle style) noexcept {
  if (!path)
    return false;
  if (style == PathStyle::Posix)
    return path[0] == '/';
  return (isWindowsSeparator(path[0]) && isWindowsSeparator(path[1])) ||
         (isDriveLetter(path[0]) && path[1] == ':' && isWindowsSeparator(path[2]));
}

String pathBaseName(const char* path, const char* extension, PathStyle style) {
  if (!path)
    return String();
  int root = pathRootLength(path, style);
  int end = trimmedEnd(path, root, style);
  if (end == root)
    return strDup(path, root);
  int start = lastElementStart(path, root, end, style);
  std::string_view name(path + start, static_cast<std::size_t>(end - start));
  if (isDotElement(name))
    return String(".");
  String result = strDup(name.data(), static_cast<int>(name.size()));
  std::size_t extensionLength = strLen(extension);
  if (extensionLength > 0 && name.size() > extensionLength &&
      endsWithNoCase(result.get(), extension))
    result.data()[name.size() - extensionLength] = '\0';
  return result;
}

String pathDirName(const char* path, PathStyle style) {
  if (!path)
    return String();
  int root = 0;
  String normal = pathNormalise(path, &root, style);
  const char* text = normal.get();
  int end = trimmedEnd(text, root, style);
  if (end == 0)
    return String(".");
  if (end == root)
    return strDup(text, root);
  int start = lastElementStart(text, root, end, style);
  // Only a literal form can still hold dot elements anywhere but in front.
  if (!isLiteralForm(text, style)) {
    std::string_view last(text + start, static_cast<std::size_t>(end - start));
    if (last == ".")
      return String("..");
    if (last == "..")
      return pathJoin(text, "..", style);
  }
  int dirEnd = start;
  while (dirEnd > root && isPathSeparator(text[dirEnd - 1], style))
    --dirEnd;
  if (dirEnd == 0)
    return String(".");
  return strDup(text, dirEnd);
}

String pathJoin(const char* dir, const char* name, PathStyle style) {
  DString out(dir);
  int length = out.length();
  if (length > 0 && !isPathSeparator(dir[length - 1], style))
    out.appendChar(pathSeparator(style));
  out.append(name);
  return out.isNull() ? String("") : out.takeString();
}

String pathMakeSafeName(const char* name, char replacement) {
  if (!name)
    return String();
  DString safe(name);
  char* text = safe.data();
  for (char* cursor = text; *cursor; ++cursor)
    if (isUnsafeChar(*cursor))
      *cursor = replacement;
  for (const char* reserved : reservedNames) {
    std::size_t length = std::strlen(reserved);
    if (startsWithNoCase(text, reserved) && (text[length] == '\0' || text[length] == '.')) {
      safe.replaceRange(0, static_cast<int>(length), "");
      break;
    }
  }
  int length = safe.length();
  if (length > 0 && (safe.get()[length - 1] == ' ' || safe.get()[length - 1] == '.'))
    safe.data()[length - 1] = replacement;
  return safe.takeString();
}

String pathMakeAbsolute(const char* path) {
  if (!path || pathIsAbsolute(path))
    return pathNormalise(path);
  String current = getCurrentDir();
  return pathNormalise(pathJoin(current.get(), path).get());
}

} // namespace plat
