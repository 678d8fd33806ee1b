// What a group tells people about itself: the help text of the command line
// and the dump of values into the log.
#include "plat/BinaryParameter.h"
#include "plat/CatalogText.h"
#include "plat/Configuration.h"
#include "plat/DString.h"
#include "plat/LogDest.h"
#include "plat/LogSrc.h"
#include "plat/NameCompare.h"
#include "plat/TextKeys.h"
#include "plat/utf8.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace plat {

namespace {

LogSrc configurationLog("Configuration");

constexpr int helpWidth = 79;
constexpr int nameColumn = 14;
// Descriptions start after "  ", the name column and " - ".
constexpr int descriptionIndent = nameColumn + 5;

bool isHidden(const ConfigParameter& parameter) {
  return parameter.name()[0] == '_';
}

bool byName(const ConfigParameter* a, const ConfigParameter* b) {
  return compareNoCase(a->name(), b->name()) < 0;
}

// The width of the last line of `text`, in bytes.
int lastLineLength(const char* text) {
  const char* lastBreak = std::strrchr(text, '\n');
  return static_cast<int>(std::strlen(lastBreak ? lastBreak + 1 : text));
}

String describe(const ConfigParameter& parameter, bool showDefaults) {
  DString text;
  text.appendFormat("  %-*s - %s", nameColumn, parameter.name(), parameter.getDescription());
  text.wordWrap(helpWidth, descriptionIndent);
  if (!showDefaults || dynamic_cast<const BinaryParameter*>(&parameter))
    return text.takeString();
  String note = strFormat("(%s=%s)", XN_CATALOG_TEXT(textkey::plat_configuration_help_default),
                          parameter.getValueString().get());
  if (codePointCount(note.get()) + 1 + lastLineLength(text.get()) <= helpWidth) {
    text.appendFormat(" %s", note.get());
  } else {
    text.append("\n");
    text.appendChar(' ', descriptionIndent);
    text.append(note.get());
  }
  text.wordWrap(helpWidth, descriptionIndent);
  return text.takeString();
}

void printParamList(const Configuration& group, bool all, bool showDefaults, std::FILE* out) {
  if (group.titleKey())
    std::fprintf(out, "%s:\n", XN_CATALOG_TEXT(group.titleKey()));
  else
    std::fprintf(out, "%s Parameters:\n", group.name());
  std::vector<const ConfigParameter*> listed;
  for (const ConfigParameter* parameter = group.firstParam(); parameter;
       parameter = parameter->next()) {
    if (!isHidden(*parameter) && (all || !parameter->isAdvanced()))
      listed.push_back(parameter);
  }
  std::stable_sort(listed.begin(), listed.end(), byName);
  for (const ConfigParameter* parameter : listed)
    std::fprintf(out, "%s\n", describe(*parameter, showDefaults).get());
  for (const Configuration* subgroup : group.subgroups())
    printParamList(*subgroup, all, showDefaults, out);
}

} // namespace

void Configuration::printHelp(bool all, bool showDefaults, std::FILE* out) const {
  String usage = wrapText(XN_CATALOG_TEXT(textkey::plat_configuration_param_usage), helpWidth, 0);
  std::fprintf(out, "%s\n\n", usage.get());
  printParamList(*this, all, showDefaults, out);
  if (!all)
    return;
  std::fprintf(out, "\n%s\n", XN_CATALOG_TEXT(textkey::plat_configuration_log_names_title));
  listLogNames(helpWidth, out);
  std::fprintf(out, "\n%s\n", XN_CATALOG_TEXT(textkey::plat_configuration_log_dests_title));
  listLogDests(out);
}

void Configuration::logValues() const {
  std::vector<const ConfigParameter*> listed;
  forEachParam([&](ConfigParameter& parameter) {
    if (!isHidden(parameter))
      listed.push_back(&parameter);
  });
  std::stable_sort(listed.begin(), listed.end(), [](const auto* a, const auto* b) {
    int pa = a->getPriority();
    int pb = b->getPriority();
    return pa != pb ? pa > pb : byName(a, b);
  });
  for (const ConfigParameter* parameter : listed) {
    int priority = parameter->getPriority();
    int level = priority < 1 ? LogSrc::levelDebug : LogSrc::levelInfo;
    if (!configurationLog.passes(level))
      continue;
    String label = priorityName(priority, parameter->hasValueAt(priorityPreference));
    configurationLog.write(level, "%s=%s (%s)", parameter->name(),
                           parameter->getValueTextAt(priority).get(), label.get());
  }
}

} // namespace plat
