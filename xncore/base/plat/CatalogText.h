// How the base reads its user-visible texts. The texts are found by key in the
// translation catalogs, which live in a library built on this one; that
// library installs its reader during static initialisation. Without a reader,
// a key reads as itself, as a missing text does.
#pragma once

#include "plat/String.h"

namespace plat {

struct CatalogReader {
  /// The plain text of `key`; `file` and `line` name the reader for the log.
  const char* (*text)(const char* key, const char* file, int line);
  /// The format text of `key`, its one string placeholder filled with `argument`.
  String (*format)(const char* key, const char* argument, const char* file, int line);
};

/// Installs `reader`, which must fill both operations.
void setCatalogReader(const CatalogReader& reader) noexcept;

const char* catalogText(const char* key, const char* file, int line);
String catalogFormat(const char* key, const char* argument, const char* file, int line);

} // namespace plat

#define XN_CATALOG_TEXT(key) ::plat::catalogText((key), __FILE__, __LINE__)
#define XN_CATALOG_FORMAT(key, argument)                                                           \
  ::plat::catalogFormat((key), (argument), __FILE__, __LINE__)
