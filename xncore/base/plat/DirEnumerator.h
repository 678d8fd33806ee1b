// plat::DirEnumerator walks the entries of one directory, leaving out "." and
// "..", in the order the file system gives them.
#pragma once

#include "plat/DString.h"
#include "plat/Path.h"
#include "plat/String.h"

namespace plat {

class DirEnumerator {
public:
  /// Opens `dir`; raises SystemException "opendir(<dir>)".
  explicit DirEnumerator(const char* dir);
  DirEnumerator(const DirEnumerator&) = delete;
  DirEnumerator& operator=(const DirEnumerator&) = delete;
  ~DirEnumerator();

  /// Moves to the next entry; false after the last. Raises "readdir(<dir>)".
  bool next();
  /// The current entry's name, without the directory.
  const char* name() const noexcept { return name_.get(); }
  /// The directory joined with the current entry's name.
  String path() const { return pathJoin(dir_.get(), name_.get()); }
  /// True when the current entry is itself a directory; a link is not followed.
  bool isDirectory() const noexcept { return isDirectory_; }

private:
  String dir_;
  void* handle_ = nullptr; // the platform's directory stream
  DString name_;
  bool isDirectory_ = false;
};

} // namespace plat
