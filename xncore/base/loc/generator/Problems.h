// What the catalog generator found wrong, each with its file and line, so that
// the build's message leads the translator to the text.
#pragma once

#include <string>
#include <vector>

namespace locgen {

struct Problem {
  std::string path;
  int line = 0; // 0 when the problem belongs to the whole file
  std::string message;
};

using Problems = std::vector<Problem>;

} // namespace locgen
