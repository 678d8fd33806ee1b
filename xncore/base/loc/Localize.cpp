#include "loc/Localize.h"

#include "loc/DefaultLocales.h"
#include "loc/LocaleNames.h"
#include "loc/LocaleParameter.h"
#include "plat/Assertion.h"
#include "plat/CatalogText.h"
#include "plat/LogSrc.h"
#include "plat/utf8.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace loc {

namespace {

plat::LogSrc localizeLog("Localize");

std::atomic<bool> abortOnBadTranslation{false};

using Lock = std::lock_guard<std::recursive_mutex>;

void reportMissing(const char* what, const char* key, const char* file, int line) {
  plat::DString message;
  message.appendFormat("%s for \"%s\"", what, key);
  if (file)
    message.appendFormat(" (%s:%d)", file, line);
  detail::reportBadText(message.get());
}

// The base reads its texts through this, since it cannot call up to here.
const char* catalogText(const char* key, const char* file, int line) {
  return get(key, file, line, false);
}

plat::String catalogFormat(const char* key, const char* argument, const char* file, int line) {
  return formatText(get(key, file, line, true), argument);
}

[[maybe_unused]] const bool readerInstalled =
    (plat::setCatalogReader({&catalogText, &catalogFormat}), true);

} // namespace

// The tables of the base's own texts, which this library compiles.
namespace catalog {
void plat();
void loc();
} // namespace catalog

namespace {

// The base's texts are in place before the first lookup, whether or not the
// linker kept the static objects of their tables that register them too.
void registerBaseCatalogs() {
  static const bool registered = (catalog::plat(), catalog::loc(), true);
  (void)registered;
}

} // namespace

namespace detail {

void reportBadText(const char* message) {
  localizeLog.error("%s", message);
  if (abortOnBadTranslation) {
    std::fprintf(stderr, "%s\nAborting\n", message);
    std::abort();
  }
}

} // namespace detail

Localize& Localize::instance() {
  // Never destroyed: texts are read until the very end of the process.
  static Localize* localize = new Localize;
  return *localize;
}

std::recursive_mutex& Localize::mutex() noexcept {
  static std::recursive_mutex lock;
  return lock;
}

void Localize::setAbortOnBadTranslation(bool on) noexcept {
  abortOnBadTranslation = on;
}

const char* Localize::keep(plat::String text) {
  ownedTexts_.push_back(std::move(text));
  return ownedTexts_.back().get();
}

void Localize::add(const char* language, const char* key, const char* text) {
  Lock lock(mutex());
  addUnlocked(language, key, text);
}

void Localize::addCatalog(const CatalogEntry* entries, std::size_t count) {
  Lock lock(mutex());
  for (std::size_t index = 0; index < count; ++index)
    addUnlocked(entries[index].language, entries[index].key, entries[index].text);
}

void Localize::addUnlocked(const char* language, const char* key, const char* text) {
  const char* str = text;
  if (!plat::isValidUtf8(str))
    plat::assertionFailed(plat::AssertionFail("isValidUtf8(str)", __FILE__, __LINE__)
                              .addDetail("Bad UTF-8 in %s", key));
  if (!lastLanguage_ || std::strcmp(lastLanguage_, language) != 0) {
    lastLanguage_ = language;
    lastCatalog_ = &catalogs_[plat::String(language)];
    lastPosition_ = lastCatalog_->begin();
  }
  // Sorted input makes the entry after the previous one the right hint.
  auto entry =
      lastCatalog_->emplace_hint(lastPosition_, CatalogKey{key, false}, Translation(text, false));
  lastPosition_ = std::next(entry);
  ++generation_;
}

void Localize::addFromFile(const char* language, const char* key, const char* text) {
  Lock lock(mutex());
  const char* keptText = keep(plat::String(text));
  Catalog& catalog = catalogs_[plat::String(language)];
  auto found = catalog.find(CatalogKey{key, false});
  if (found != catalog.end()) {
    found->second.replace(keptText, true);
    return;
  }
  catalog.emplace(CatalogKey{keep(plat::String(key)), true}, Translation(keptText, true));
  ++generation_;
}

void Localize::init(std::vector<plat::String> stringDirs) {
  {
    Lock lock(mutex());
    if (!following_)
      localeParameter.addCallback(this);
    following_ = true;
    stringDirs_ = std::move(stringDirs);
    loadedLocales_.clear();
  }
  update();
}

void Localize::setStringDirs(std::vector<plat::String> stringDirs) {
  {
    Lock lock(mutex());
    stringDirs_ = std::move(stringDirs);
    loadedLocales_.clear();
  }
  update();
}

void Localize::setStringFileLoader(StringFileLoader loader) {
  Lock lock(mutex());
  stringFileLoader_ = loader;
}

void Localize::paramChanged(plat::ConfigParameter*, int) {
  update();
}

void Localize::update() {
  registerBaseCatalogs();
  plat::String value = localeParameter.getValueString();
  std::vector<plat::String> locales;
  if (*value.get())
    parseLocaleList(value.get(), locales, nullptr, nullptr);
  else
    defaultLocales(locales);
  if (std::find(locales.begin(), locales.end(), "en_US") == locales.end())
    locales.emplace_back("en_US");
  Lock lock(mutex());
  locales_ = locales;
  useLocales(locales, &TransMap::process());
  plat::String joined = localeList();
  if (!(joined == loggedLocales_)) {
    localizeLog.info("Locales %s", joined.get());
    loggedLocales_ = std::move(joined);
  }
}

bool Localize::loadStrings(const std::vector<plat::String>& list) {
  Lock lock(mutex());
  bool loaded = false;
  for (const plat::String& locale : list) {
    if (!loadedLocales_.insert(locale).second)
      continue;
    if (stringFileLoader_ && stringFileLoader_(locale.get(), stringDirs_, *this))
      loaded = true;
  }
  return loaded;
}

void Localize::useLocales(const std::vector<plat::String>& list, TransMap* transMap) {
  std::vector<plat::String> expanded;
  expandLocales(list, expanded);
  Lock lock(mutex());
  TransMap& map = transMap ? *transMap : TransMap::current();
  bool loaded = loadStrings(expanded);
  if (!loaded && map.generation_ == generation_ && map.locales_ == expanded)
    return;
  map.locales_ = std::move(expanded);
  rebuild(map);
}

plat::String Localize::localeList() const {
  Lock lock(mutex());
  plat::DString joined;
  joined.ensure(1);
  for (const plat::String& locale : locales_) {
    if (joined.length())
      joined.append(":");
    joined.append(locale.get());
  }
  return joined.takeString();
}

void Localize::rebuild(TransMap& map) {
  map.entries_.clear();
  localizeLog.trace("Updating %s TransMap with locales:", map.isProcess_ ? "process" : "thread");
  for (const plat::String& locale : map.locales_) {
    localizeLog.trace(" %s", locale.get());
    auto catalog = catalogs_.find(locale);
    if (catalog == catalogs_.end())
      continue;
    // The first locale that has a key wins.
    for (auto& [key, translation] : catalog->second)
      map.entries_.emplace(key.text, &translation);
  }
  map.generation_ = generation_;
}

Translation* Localize::find(TransMap& map, const char* key) {
  if (map.generation_ != generation_)
    rebuild(map);
  auto found = map.entries_.find(key);
  return found == map.entries_.end() ? nullptr : found->second;
}

const char* get(const char* key, const char* file, int line, bool raw) {
  XN_ASSERT(key);
  registerBaseCatalogs();
  Localize& localize = Localize::instance();
  Lock lock(Localize::mutex());
  if (Translation* translation = localize.find(TransMap::current(), key))
    return translation->get(raw, key);
  reportMissing("Missing translation", key, file, line);
  return key;
}

const char* getOptional(const char* key, bool raw) {
  XN_ASSERT(key);
  registerBaseCatalogs();
  Localize& localize = Localize::instance();
  Lock lock(Localize::mutex());
  Translation* translation = localize.find(TransMap::current(), key);
  return translation ? translation->get(raw, key) : nullptr;
}

const char* getPlural(const char* key, int count, const char* file, int line) {
  XN_ASSERT(key);
  registerBaseCatalogs();
  Localize& localize = Localize::instance();
  Lock lock(Localize::mutex());
  for (const plat::String& locale : TransMap::current().locales()) {
    auto catalog = localize.catalogs_.find(locale);
    if (catalog == localize.catalogs_.end())
      catalog = localize.catalogs_.find(splitLocale(locale.get()).language);
    if (catalog == localize.catalogs_.end())
      continue;
    plat::String fullKey = plat::strFormat("%s_%s", key, pluralForm(locale.get(), count));
    auto found = catalog->second.find(Localize::CatalogKey{fullKey.get(), false});
    if (found != catalog->second.end())
      return found->second.get(true, fullKey.get());
  }
  reportMissing("Missing plural translation", key, file, line);
  return key;
}

} // namespace loc
