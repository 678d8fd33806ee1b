// loc::Localize: every user-visible text of the program is read by key from
// here. The texts of all languages are compiled in as catalogs, one per
// library, registered during static initialisation; string files may add to
// them later. The user's locale list decides which catalog answers a key,
// with English as the last resort. A lookup never fails visibly: a missing
// key is logged and shown as itself.
//
// One lock guards the catalogs, every TransMap and the state of every
// Translation, so lookups are safe from any thread, and a returned text stays
// valid for the rest of the process.
#pragma once

#include "loc/LocArg.h"
#include "loc/TransMap.h"
#include "loc/Translation.h"
#include "plat/ConfigParameter.h"
#include "plat/DString.h"
#include "plat/String.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <vector>

namespace loc {

/// One text of a generated catalog.
struct CatalogEntry {
  const char* language;
  const char* key;
  const char* text;
};

class Localize : private plat::ParameterChangedCallback {
public:
  /// Loads the string files of `locale` from `directories` into `localize`;
  /// true when something was loaded. Runs under the lock.
  using StringFileLoader = bool (*)(const char* locale,
                                    const std::vector<plat::String>& directories,
                                    Localize& localize);

  /// The single object, built on first use.
  static Localize& instance();

  /// Registers compiled-in text; neither key nor text is copied. When the key
  /// exists already, the first registration stands. Bad UTF-8 is fatal.
  void add(const char* language, const char* key, const char* text);
  /// Registers a generated catalog, language by language with keys sorted,
  /// which makes the registration linear.
  void addCatalog(const CatalogEntry* entries, std::size_t count);
  /// Registers text from a string file; both are copied, and a text that
  /// exists under the key is replaced in place and read afresh.
  void addFromFile(const char* language, const char* key, const char* text);

  /// Follows parameter "Locale" from now on, with `stringDirs` to search for
  /// string files, and selects the locales.
  void init(std::vector<plat::String> stringDirs);
  /// As init without following "Locale".
  void setStringDirs(std::vector<plat::String> stringDirs);
  /// Works out the locale list from "Locale" and rebuilds the process map.
  void update();
  /// Loads string files for the locales of `list` not tried before; true when
  /// anything was loaded.
  bool loadStrings(const std::vector<plat::String>& list);
  /// Fills `transMap` (null: the current one) for `list` and its fallbacks.
  void useLocales(const std::vector<plat::String>& list, TransMap* transMap);
  /// The selected locales joined by ":".
  plat::String localeList() const;

  /// Installs what reads string files; null reads none.
  void setStringFileLoader(StringFileLoader loader);

  /// Makes a missing text or a bad format end the process, for finding them
  /// in development. Off in the program.
  static void setAbortOnBadTranslation(bool on) noexcept;

private:
  friend class Translation;
  friend class TransMap;
  friend const char* get(const char*, const char*, int, bool);
  friend const char* getOptional(const char*, bool);
  friend const char* getPlural(const char*, int, const char*, int);

  struct CatalogKey {
    const char* text;
    bool ownsText;
  };
  struct CatalogKeyLess {
    bool operator()(const CatalogKey& a, const CatalogKey& b) const noexcept {
      return KeyLess()(a.text, b.text);
    }
  };
  using Catalog = std::map<CatalogKey, Translation, CatalogKeyLess>;

  Localize() = default;
  void paramChanged(plat::ConfigParameter* parameter, int priority) override;

  static std::recursive_mutex& mutex() noexcept;
  /// Keeps `text` for the rest of the process and returns the kept copy.
  const char* keep(plat::String text);
  void addUnlocked(const char* language, const char* key, const char* text);
  /// The translation of `key` in `map`, rebuilding the map first when
  /// catalogs grew since it was built.
  Translation* find(TransMap& map, const char* key);
  void rebuild(TransMap& map);

  std::map<plat::String, Catalog> catalogs_;
  std::vector<plat::String> locales_;
  std::vector<plat::String> stringDirs_;
  std::set<plat::String> loadedLocales_;

  // The registration cache: consecutive texts of one language go to the
  // same catalog, each inserted just after the previous one.
  const char* lastLanguage_ = nullptr;
  Catalog* lastCatalog_ = nullptr;
  Catalog::iterator lastPosition_;

  std::uint64_t generation_ = 1;
  std::vector<plat::String> ownedTexts_;
  StringFileLoader stringFileLoader_ = nullptr;
  plat::String loggedLocales_;
  bool following_ = false;
};

/// The text of `key` in the current locales. `raw` says that the caller
/// formats it with arguments; otherwise it is shown as it stands. `file` and
/// `line` name the reader in the log line of a missing key.
const char* get(const char* key, const char* file, int line, bool raw);
/// As get, with null and no log line for a missing key.
const char* getOptional(const char* key, bool raw);
/// The format text of `key` in the plural form that `count` takes in the
/// first locale that has it ("<key>_sing" or "<key>_many").
const char* getPlural(const char* key, int count, const char* file, int line);

/// Replaces `result` by `text` with its conversions filled from `arguments`.
/// A bad conversion is logged and left in the output as "%%" and plain text.
void format(plat::DString& result, const char* text, const LocArg* arguments);

/// `text` formatted with `values` (ints, unsigned ints or texts), in order.
template <class... Values>
requires(sizeof...(Values) > 0) plat::String formatText(const char* text, Values... values) {
  LocArg arguments[] = {LocArg(values)...};
  for (std::size_t index = 0; index + 1 < sizeof...(Values); ++index)
    arguments[index].setNext(&arguments[index + 1]);
  plat::DString result;
  format(result, text, arguments);
  return result.takeString();
}

namespace detail {
/// Logs an error of the catalogs and ends the process when so asked.
void reportBadText(const char* message);
} // namespace detail

} // namespace loc

/// The plain text of catalog key `key`.
#define XN_TEXT(key) ::loc::get((key), __FILE__, __LINE__, false)
/// The format text of catalog key `key`, filled with the further arguments.
#define XN_FORMAT(key, ...)                                                                        \
  ::loc::formatText(::loc::get((key), __FILE__, __LINE__, true), __VA_ARGS__)
