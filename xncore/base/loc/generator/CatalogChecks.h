// The checks that every catalog passes before the build turns it into code:
// each file's header, each translation against English (keys, placeholders,
// '&' marks, the English it was made from) and the typographic conventions
// of its language.
#pragma once

#include "PoFile.h"
#include "Problems.h"

#include <vector>

namespace locgen {

/// Checks the files of one catalog, one per language; `files` must hold en.po.
Problems checkCatalog(const std::vector<PoFile>& files);

} // namespace locgen
