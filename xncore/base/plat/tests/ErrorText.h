// The message of the plat::Exception that an action raises, so that a table of
// cases can compare failure texts in one expression.
#pragma once

#include "plat/Exception.h"

#include <string>

namespace plat::test {

template <class Action>
std::string errorOf(Action action) {
  try {
    action();
  } catch (const Exception& e) {
    return e.what();
  }
  return "no exception";
}

} // namespace plat::test
