// The command line: arguments are parameter settings until the first one that
// is not, which is either a help request or an error.
#include "plat/CatalogText.h"
#include "plat/Configuration.h"
#include "plat/DString.h"
#include "plat/Exception.h"
#include "plat/NameCompare.h"
#include "plat/TextKeys.h"

#include <cstring>

namespace plat {

namespace {

bool isHelpRequest(const char* argument) {
  for (const char* form : {"-help", "--help", "-h", "/?"}) {
    if (equalsNoCase(argument, form))
      return true;
  }
  return false;
}

int helpMode(const char* next) {
  if (equalsNoCase(next, "all"))
    return Configuration::helpAll;
  if (equalsNoCase(next, "xml"))
    return Configuration::helpXml;
  return Configuration::helpPlain;
}

[[noreturn]] void throwBadArgument(const char* argument, bool withHelp) {
  DString message;
  message.append(XN_CATALOG_FORMAT(textkey::plat_bad_argument, argument).get());
  if (withHelp) {
    message.append("  ");
    message.append(XN_CATALOG_TEXT(textkey::plat_run_with_help));
  }
  Exception failure(message.get());
  failure.setType("BadCmdLineArg");
  throw failure;
}

} // namespace

bool Configuration::setParamFromArg(const char* argument, int priority) {
  if (!argument)
    return false;
  const char* text = argument;
  bool dashed = *text == '-';
  if (dashed && *++text == '-')
    ++text;
  if (const char* equals = std::strchr(text, '=')) {
    String name = strDup(text, static_cast<int>(equals - text));
    return setParam(name.get(), equals + 1, priority);
  }
  // A bare word is no parameter at all; "-Flag" stands for a flag switched on.
  return dashed && setParam(text, nullptr, priority);
}

bool Configuration::parseOneArg(const char* const*& cursor) {
  const char* argument = *cursor;
  if (!argument)
    return false;
  if (setParamFromArg(argument, priorityPreference)) {
    ++cursor;
    return true;
  }
  // "-Name value": one dash only, so "--Name value" keeps a dash in the name and fails.
  if (argument[0] == '-' && cursor[1] && setParam(argument + 1, cursor[1], priorityPreference)) {
    cursor += 2;
    return true;
  }
  return false;
}

bool Configuration::parseArgsNoThrow(const char* const*& cursor, const HelpFunction& help) {
  while (parseOneArg(cursor)) {
  }
  if (*cursor && help && isHelpRequest(*cursor)) {
    help(helpMode(cursor[1]), *this);
    return false;
  }
  return true;
}

void Configuration::parseArgs(const char* const* argv, const HelpFunction& help) {
  if (!argv)
    return;
  const char* const* cursor = argv;
  parseArgsNoThrow(cursor, help);
  if (*cursor)
    throwBadArgument(*cursor, static_cast<bool>(help));
}

} // namespace plat
