#include "plat/XmlConfig.h"

#include "plat/BinaryParameter.h"
#include "plat/BoolParameter.h"
#include "plat/Configuration.h"
#include "plat/EnumParameter.h"
#include "plat/Exception.h"
#include "plat/IntParameter.h"
#include "plat/MarkupEscape.h"
#include "plat/NameCompare.h"
#include "plat/NumParse.h"
#include "plat/S64Parameter.h"
#include "plat/StringParameter.h"
#include "plat/XmlReader.h"

#include <algorithm>
#include <vector>

namespace plat {

namespace {

[[noreturn]] void throwIncompatible() {
  throw Exception("Incompatible XML config");
}

// Declaration order within each group, so that a document read back declares
// same-named parameters in the order that makes the same one visible by name.
std::vector<const ConfigParameter*> sortedParams(const Configuration& configuration) {
  std::vector<const ConfigParameter*> all;
  configuration.forEachParam([&](ConfigParameter& parameter) { all.push_back(&parameter); });
  std::reverse(all.begin(), all.end());
  std::stable_sort(all.begin(), all.end(), [](const auto* a, const auto* b) {
    return compareNoCase(a->name(), b->name()) < 0;
  });
  return all;
}

int intAttribute(const XmlElement& element, const char* name, int absent) {
  const char* text = element.attribute(name);
  if (!text)
    return absent;
  std::int32_t value = 0;
  const char* cursor = text;
  if (!tryParseInt(value, cursor, 10) || *cursor)
    throwIncompatible();
  return value;
}

ConfigParameter* createParam(Configuration& configuration, const XmlElement& element,
                             const ParamDescription& description, bool advanced) {
  const char* type = element.name();
  const char* name = element.attribute("name");
  const char* tags = element.attribute("flags");
  if (equalsNoCase(type, "string"))
    return configuration.addString(name, description, "", advanced, tags);
  if (equalsNoCase(type, "bool"))
    return configuration.addBool(name, description, false, advanced, tags);
  if (equalsNoCase(type, "int")) {
    int min = intAttribute(element, "min", INT32_MIN);
    int max = intAttribute(element, "max", INT32_MAX);
    return configuration.addInt(name, description, min, advanced, min, max, tags);
  }
  if (equalsNoCase(type, "enum")) {
    std::vector<const char*> names;
    for (int i = 0; const XmlElement* option = element.child("opt", i); ++i) {
      if (!option->attribute("data"))
        throwIncompatible();
      names.push_back(option->attribute("data"));
    }
    names.push_back(nullptr);
    return configuration.addEnum(name, description, nullptr, names.data(), advanced, tags);
  }
  if (equalsNoCase(type, "s64"))
    return configuration.addS64(name, description, 0, advanced, tags);
  if (equalsNoCase(type, "binary"))
    return configuration.addBinary(name, description, MBuf<unsigned char>(), advanced, tags);
  throwIncompatible();
}

void readParam(Configuration& configuration, const XmlElement& element, XmlConfigFilter* filter) {
  const char* name = element.attribute("name");
  const char* description = element.attribute("description");
  const char* locDesc = element.attribute("locDesc");
  bool advanced = equalsNoCase(element.attribute("advanced"), "true");
  if (!name || (!description && !locDesc) || element.childCount("value") == 0)
    throwIncompatible();
  if (filter && !filter->accept(name, element.name(), advanced))
    return;
  ConfigParameter* parameter =
      createParam(configuration, element, ParamDescription(description, locDesc), advanced);
  for (int i = 0; const XmlElement* value = element.child("value", i); ++i) {
    const char* data = value->attribute("data");
    if (!data || !value->attribute("priority"))
      throwIncompatible();
    parameter->setFromString(data, intAttribute(*value, "priority", 0));
  }
}

} // namespace

XmlConfigWriter::XmlConfigWriter(DString& out, bool useLocDesc)
    : out_(out), useLocDesc_(useLocDesc) {
  out_.append("<?xml version=\"1.0\"?>\n<config>\n");
}

void XmlConfigWriter::write(const Configuration& configuration, bool includeHidden,
                            XmlConfigFilter* filter) {
  for (const ConfigParameter* parameter : sortedParams(configuration)) {
    const char* type = parameter->typeName();
    if (parameter->name()[0] == '_' && !includeHidden)
      continue;
    if (filter && !filter->accept(parameter->name(), type, parameter->isAdvanced()))
      continue;
    bool byKey = useLocDesc_ && parameter->locDesc();
    out_.appendFormat(
        "<%-6s name=\"%s\"\n        %s=\"%s\"\n        advanced=\"%s\"", type,
        escapeMarkup(parameter->name()).get(), byKey ? "locDesc" : "description",
        escapeMarkup(byKey ? parameter->locDesc() : parameter->getDescription()).get(),
        parameter->isAdvanced() ? "true" : "false");
    if (!parameter->tags().empty()) {
      DString flags;
      flags.ensure(1);
      const char* separator = "";
      for (const String& tag : parameter->tags()) {
        flags.append(separator);
        flags.append(tag.get());
        separator = ",";
      }
      out_.appendFormat("\n        flags=\"%s\"", escapeMarkup(flags.get()).get());
    }
    const auto* integer = dynamic_cast<const IntParameter*>(parameter);
    if (integer)
      out_.appendFormat("\n        min=\"%i\"\n        max=\"%i\"", integer->min(), integer->max());
    out_.append(">\n");
    for (const auto& [priority, text] : parameter->getAllValues())
      out_.appendFormat("    <value data=\"%s\" priority=\"%i\"/>\n",
                        escapeMarkup(text.get()).get(), priority);
    if (const auto* choice = dynamic_cast<const EnumParameter*>(parameter)) {
      for (const char* const* option = choice->names(); *option; ++option)
        out_.appendFormat("    <opt data=\"%s\"/>\n", escapeMarkup(*option).get());
    }
    out_.appendFormat("</%s>\n", type);
  }
}

void XmlConfigWriter::close() {
  out_.append("</config>\n");
}

String writeXmlConfig(const Configuration& configuration, bool includeHidden, bool useLocDesc,
                      XmlConfigFilter* filter) {
  DString out;
  XmlConfigWriter writer(out, useLocDesc);
  writer.write(configuration, includeHidden, filter);
  writer.close();
  return out.takeString();
}

void readXmlConfig(Configuration& configuration, const char* text, XmlConfigFilter* filter) {
  configuration.removeAllParams();
  XmlDocument document;
  if (!document.parse(text, "config")) {
    const XmlError& error = document.error();
    throw Exception(formatted, "XML error %i:%i %s", error.line, error.column, error.message());
  }
  for (const XmlElement::Node& node : document.root()->nodes()) {
    if (node.element)
      readParam(configuration, *node.element, filter);
  }
}

} // namespace plat
