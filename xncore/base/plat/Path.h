// Paths as text. Every path in the program is UTF-8 text, and these functions
// only look at the text, never at the file system (except pathMakeAbsolute,
// which asks for the current directory).
//
// Two styles of path are known. Windows paths take `\` and, on input, `/` as
// separators, and have these roots:
//
//   C:\...                    after the colon and the first separator
//   C:...                     after the colon (relative to the drive's directory)
//   \name or /name            after the first separator
//   \\server\share\...        after the share
//   \\?\C:\...                after the drive
//   \\?\UNC\server\share\...  after the share
//   \\.\device\...            after the device
//
// The extended (\\?\) and device (\\.\) forms are taken literally: nothing in
// them is normalised and trailing separators are kept. POSIX paths have only
// `/` as separator and a run of leading slashes as root. Every function works
// in the native style unless it is given another, so the Windows forms can be
// handled on any platform.
#pragma once

#include "plat/String.h"

namespace plat {

enum class PathStyle { Windows, Posix };

/// The style of the platform the program runs on.
PathStyle nativePathStyle() noexcept;

/// The separator that the style writes: `\` or `/`.
char pathSeparator(PathStyle style = nativePathStyle()) noexcept;
/// True for a separator of the style; Windows accepts `/` too.
bool isPathSeparator(char ch, PathStyle style = nativePathStyle()) noexcept;

/// Bytes of the root of `path`, as given (0 for a relative path or null).
int pathRootLength(const char* path, PathStyle style = nativePathStyle()) noexcept;

/// Resolves "." and "..", collapses runs of separators, writes the style's
/// separator and drops trailing ones. ".." that would climb above a root is
/// dropped; in a relative path it is kept. An empty result is ".". When
/// `rootLength` is given it receives the length of the root in the result.
String pathNormalise(const char* path, int* rootLength = nullptr,
                     PathStyle style = nativePathStyle());

/// True for a path that names one place whatever the current directory and
/// drive: drive with separator, UNC, extended or device form; POSIX: a leading `/`.
bool pathIsAbsolute(const char* path, PathStyle style = nativePathStyle()) noexcept;

/// The last element. The root alone gives itself; "." and ".." give ".". When
/// the name ends with `extension` (regardless of case) and is longer than it,
/// the extension is cut off.
String pathBaseName(const char* path, const char* extension = nullptr,
                    PathStyle style = nativePathStyle());

/// The normalised path without its last element: "." when there is no
/// directory, the root for the root, ".." for "." and one more ".." for "..".
String pathDirName(const char* path, PathStyle style = nativePathStyle());

/// `dir` and `name` with one separator between, none when `dir` is empty or
/// already ends with a separator.
String pathJoin(const char* dir, const char* name, PathStyle style = nativePathStyle());

/// `name` made usable as a file name on every platform: the characters
/// \ / : * ? " < > |, controls and DEL become `replacement`; a leading
/// reserved device name (CON, PRN, AUX, NUL, COM1-9, LPT1-9, with or without
/// an extension) is removed; a final blank or dot becomes `replacement`.
String pathMakeSafeName(const char* name, char replacement);

/// A relative path behind the current directory, normalised in the native style.
String pathMakeAbsolute(const char* path);

} // namespace plat
