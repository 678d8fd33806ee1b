// The switch that turns every BadUtf8 into a fatal assertion, so that a
// developer gets a stack trace at the first bad string.
#include "plat/BoolParameter.h"
#include "plat/Exception.h"

namespace plat {

namespace {
BoolParameter badUtf8AssertParameter("_BadUtf8Assert",
                                     "Make bad UTF-8 cause an assertion failure for debugging",
                                     false, true);
}

bool badUtf8Asserts() noexcept {
  return badUtf8AssertParameter;
}

void setBadUtf8Asserts(bool on) noexcept {
  badUtf8AssertParameter.setValue(on, priorityPreference);
}

} // namespace plat
