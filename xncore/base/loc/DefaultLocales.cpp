#include "loc/DefaultLocales.h"

#include "loc/LocaleNames.h"

#include <cstring>

namespace loc {

namespace {

bool isSet(const char* value) {
  return value && *value;
}

bool isNeutral(const char* locale) {
  return std::strcmp(locale, "C") == 0 || std::strncmp(locale, "C.", 2) == 0 ||
         std::strcmp(locale, "POSIX") == 0;
}

} // namespace

void appendEnvironmentLocales(const LocaleEnvironment& environment,
                              std::vector<plat::String>& list) {
  const char* messages = nullptr;
  for (const char* value : {environment.lcAll, environment.lcMessages, environment.lang}) {
    if (isSet(value)) {
      messages = value;
      break;
    }
  }
  if (!messages || isNeutral(messages))
    return;
  if (isSet(environment.language))
    parseLocaleList(environment.language, list, nullptr, nullptr);
  parseLocaleList(messages, list, nullptr, nullptr);
}

} // namespace loc
