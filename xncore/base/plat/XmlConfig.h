// The XML form of a configuration: every parameter with its type, texts,
// range, tags and the values at all priorities, so that a whole parameter set
// can be listed (for "-help xml") and rebuilt in another group.
#pragma once

#include "plat/DString.h"
#include "plat/String.h"

namespace plat {

class Configuration;

/// Chooses the parameters that are written or read.
class XmlConfigFilter {
public:
  virtual ~XmlConfigFilter() = default;
  virtual bool accept(const char* name, const char* typeName, bool advanced) = 0;
};

class XmlConfigWriter {
public:
  /// Appends the head of the document to `out`. With `useLocDesc`, parameters
  /// that have a catalog key are described by the key rather than the text.
  XmlConfigWriter(DString& out, bool useLocDesc);

  /// Appends the parameters of `configuration` and its subgroups, sorted by
  /// name; names beginning with "_" only with `includeHidden`.
  void write(const Configuration& configuration, bool includeHidden, XmlConfigFilter* filter);
  /// Appends the end of the document.
  void close();

private:
  DString& out_;
  bool useLocDesc_;
};

/// The whole document for `configuration`.
String writeXmlConfig(const Configuration& configuration, bool includeHidden, bool useLocDesc,
                      XmlConfigFilter* filter);

/// Replaces the parameters of `configuration` by those of the document `text`.
/// Raises Exception "XML error <line>:<column> <message>" for text that is not
/// XML and "Incompatible XML config" for XML that is not a configuration.
void readXmlConfig(Configuration& configuration, const char* text, XmlConfigFilter* filter);

} // namespace plat
