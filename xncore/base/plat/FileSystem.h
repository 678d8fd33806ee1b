// Operations on the file system by UTF-8 path. Failures raise exceptions that
// name the operation and the path and carry the system's error code and text;
// only "not found" is an answer rather than a failure, and only where a
// function asks whether something exists.
#pragma once

#include "plat/String.h"
#include "plat/Ticks.h"

#include <cstdint>

namespace plat {

// Modes of fileOpenFd and File::open.
inline constexpr int fileModeRead = 0;   ///< reading an existing file
inline constexpr int fileModeWrite = 1;  ///< writing a new or emptied file
inline constexpr int fileModeUpdate = 2; ///< reading and writing

/// False when the path or one of its directories does not exist; raises
/// "fileExists(<path>)" when the system cannot tell.
bool fileExists(const char* path);

/// True for an existing directory; false when there is nothing or a non-directory.
bool isDirectory(const char* path);

/// Size in bytes; raises "fileGetSize(<path>)".
std::int64_t fileGetSize(const char* path);

/// Time of the last modification as wall-clock ticks; raises "fileGetTime(<path>)".
Ticks fileGetTime(const char* path);

/// Opens a descriptor with one of the modes above; writing and updating create
/// a missing file with `permissions` (less the process's mask). Raises
/// "fileOpenFd(<path>)".
int fileOpenFd(const char* path, int mode, int permissions = 0666);

/// Renames, replacing an existing target; raises "fileRename(<from>,<to>)".
void fileRename(const char* from, const char* to);

/// Copies a file's content, replacing an existing target; raises Exception
/// "Cannot copy file (from:<from> to:<to>): 0x<code>".
void fileCopy(const char* from, const char* to);

/// Moves a file, across file systems too. Raises Exception "Cannot rename file
/// ..." when the rename fails, "Cannot move file ..." when the copy that
/// stands in for it across file systems fails.
void fileMove(const char* from, const char* to);

/// Deletes a file; raises Exception "Cannot delete file (<path>): 0x<code>".
void fileDelete(const char* path);

/// Creates a directory (rwxr-xr-x, less the process's mask) and returns true.
/// An existing directory gives false, or raises "mkDir(<path>)" unless
/// `existingIsFine`; with `fixPermissions` it is set to rwxr-xr-x again.
bool mkDir(const char* path, bool existingIsFine = true, bool fixPermissions = false);

/// Creates a directory only its owner may use (rwx------). An existing
/// directory of the current user is kept, with its permissions reset, and
/// gives false; anything else in its place is renamed to "<path>.bad" first.
bool makePrivateDir(const char* path);

/// Raises "chDir(<path>)".
void chDir(const char* path);

/// Raises SystemException "getcwd".
String getCurrentDir();

} // namespace plat
