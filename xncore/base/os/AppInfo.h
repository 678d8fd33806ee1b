// os::AppInfo: who the running program is. A process-wide set of names that
// the product initialisation fills once at start-up, and that everything
// which names the product to a person, or finds its files, reads afterwards.
//
// Each getter takes `emptyIfUnset`: with true an unset value reads as "";
// with false it is an assertion, since the program must say who it is before
// anything asks. The values are written during single-threaded start-up.
#pragma once

namespace os {

const char* getApp(bool emptyIfUnset);
const char* getCompany(bool emptyIfUnset);
const char* getGroup(bool emptyIfUnset);
/// The short path component of the product family, such as "oxn".
const char* getPathComp(bool emptyIfUnset);

/// The name to show: the translation of the name key, in the language in
/// force and without the registered mark; else the display name; else getApp.
const char* getDisplayName(bool emptyIfUnset);
/// getDisplayName followed by the registered mark U+00AE. The text stays
/// valid until the next call, which may come from this thread only.
const char* getRegisteredName(bool emptyIfUnset);

/// Stores the values, skipping those that are equal already; `app` must not
/// be null. `nameKey` (a catalog key) and `displayName` may be.
void setAppInfo(const char* app, const char* company, const char* pathComp, const char* nameKey,
                const char* displayName);
void setApp(const char* app);
void setGroup(const char* group);
/// Shows `name` from now on, in place of the translated name key.
void setDisplayName(const char* name);

/// Whether the application, the company and the path component are all set.
bool isComplete() noexcept;
bool hasApp() noexcept;

} // namespace os
