// loc::TransMap: the flattened view of the catalogs for one locale list, key
// to text. The process has one; a piece of code that works in another language
// for a while puts a map of its own in place on its thread. Entries point into
// the catalogs, which never remove a text, so a text that a lookup returned
// stays valid after the map is rebuilt for other locales.
#pragma once

#include "plat/NonCopyable.h"
#include "plat/String.h"

#include <cstdint>
#include <cstring>
#include <map>
#include <vector>

namespace loc {

class Translation;

/// Orders catalog keys by their bytes.
struct KeyLess {
  bool operator()(const char* a, const char* b) const noexcept { return std::strcmp(a, b) < 0; }
};

class TransMap : plat::NonCopyable {
public:
  /// A map for the calling thread, current there until it ends; it reads
  /// nothing until Localize::useLocales fills it.
  TransMap();
  ~TransMap();

  /// The process's map, built on first use. Until the locales are selected
  /// it reads English.
  static TransMap& process();
  /// This thread's map if it has one, else the process's.
  static TransMap& current();

  /// The expanded locale list the entries were built from.
  const std::vector<plat::String>& locales() const noexcept { return locales_; }
  bool isProcess() const noexcept { return isProcess_; }

private:
  friend class Localize;
  struct ProcessTag {};
  explicit TransMap(ProcessTag);

  TransMap* previous_ = nullptr;
  std::map<const char*, Translation*, KeyLess> entries_;
  std::vector<plat::String> locales_;
  // The catalogs' generation the entries were built from; 0 means never.
  std::uint64_t generation_ = 0;
  bool isProcess_ = false;
};

} // namespace loc
