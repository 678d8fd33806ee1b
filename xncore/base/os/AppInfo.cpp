#include "os/AppInfo.h"

#include "loc/Localize.h"
#include "plat/Assertion.h"
#include "plat/DString.h"
#include "plat/String.h"

#include <map>
#include <mutex>

namespace os {

namespace {

constexpr const char* registeredMark = "\xC2\xAE";

struct Identity {
  plat::String app;
  plat::String displayName;
  plat::String nameKey;
  plat::String company;
  plat::String pathComp;
  plat::String group;
  plat::String registeredName;
};

Identity& identity() {
  static Identity* const shared = new Identity();
  return *shared;
}

void store(plat::String& field, const char* value) {
  if (plat::compare(field.get(), value) != 0)
    field = plat::String(value);
}

// The value of `field`; an unset one reads as "" or, unless `emptyIfUnset`,
// fails the assertion `expression`.
const char* valueOf(const plat::String& field, bool emptyIfUnset, const char* expression,
                    int line) {
  if (field.isNull() && !emptyIfUnset)
    plat::assertionFailed(plat::AssertionFail(expression, __FILE__, line));
  return field.isNull() ? "" : field.get();
}

// The translated name without its registered mark, as titles show it. Catalog
// texts live as long as the process, so each is stripped once.
const char* withoutRegisteredMark(const char* translated) {
  static std::mutex lock;
  static auto* const stripped = new std::map<const char*, plat::String>();
  std::lock_guard<std::mutex> hold(lock);
  auto found = stripped->find(translated);
  if (found == stripped->end())
    found = stripped->emplace(translated, plat::replaceAll(translated, registeredMark, "")).first;
  return found->second.get();
}

} // namespace

const char* getApp(bool emptyIfUnset) {
  return valueOf(identity().app, emptyIfUnset, "emptyIfUnset || app", __LINE__);
}

const char* getCompany(bool emptyIfUnset) {
  return valueOf(identity().company, emptyIfUnset, "emptyIfUnset || company", __LINE__);
}

const char* getGroup(bool emptyIfUnset) {
  return valueOf(identity().group, emptyIfUnset, "emptyIfUnset || group", __LINE__);
}

const char* getPathComp(bool emptyIfUnset) {
  return valueOf(identity().pathComp, emptyIfUnset, "emptyIfUnset || pathComp", __LINE__);
}

const char* getDisplayName(bool emptyIfUnset) {
  const Identity& current = identity();
  if (!current.nameKey.isNull())
    return withoutRegisteredMark(loc::get(current.nameKey.get(), __FILE__, __LINE__, false));
  if (!current.displayName.isNull())
    return current.displayName.get();
  return getApp(emptyIfUnset);
}

const char* getRegisteredName(bool emptyIfUnset) {
  plat::String composed = plat::strFormat("%s%s", getDisplayName(emptyIfUnset), registeredMark);
  identity().registeredName = std::move(composed);
  return identity().registeredName.get();
}

void setAppInfo(const char* app, const char* company, const char* pathComp, const char* nameKey,
                const char* displayName) {
  const char* a = app;
  XN_ASSERT(a);
  Identity& current = identity();
  store(current.app, app);
  store(current.company, company);
  store(current.pathComp, pathComp);
  store(current.nameKey, nameKey);
  store(current.displayName, displayName);
}

void setApp(const char* app) {
  const char* a = app;
  XN_ASSERT(a);
  store(identity().app, app);
}

void setGroup(const char* group) {
  const char* g = group;
  XN_ASSERT(g);
  store(identity().group, group);
}

void setDisplayName(const char* name) {
  store(identity().displayName, name);
  identity().nameKey = plat::String();
}

bool isComplete() noexcept {
  const Identity& current = identity();
  return !current.app.isNull() && !current.company.isNull() && !current.pathComp.isNull();
}

bool hasApp() noexcept {
  return !identity().app.isNull();
}

} // namespace os
