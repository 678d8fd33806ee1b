// Expansion of variables in paths, as the log directory and file names use
// them: "$NAME", "${NAME}", and "$$" for a dollar sign.
#pragma once

#include "plat/String.h"

#include <map>

namespace plat {

using PathVariables = std::map<String, String>;

/// `text` with every "$NAME" (letters, digits, "_") and "${NAME}" (up to "}",
/// or to the end without one) replaced by its value; "$$" and "${}" give "$".
/// Names are looked up in `variables` when given, otherwise with
/// `useEnvironment` in the environment. An unknown name raises Exception
/// "unknown environment variable: <name>" when `strict`, else gives nothing.
String pathExpand(const char* text, const PathVariables* variables = nullptr, bool strict = false,
                  bool useEnvironment = true);

} // namespace plat
