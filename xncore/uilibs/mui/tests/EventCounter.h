// An observer for tests that counts the events reaching the element it
// watches, by code, so that a test can say which operations raise events
// and which raise none.
#pragma once

#include "mui/Events.h"
#include "mui/MuObserver.h"

#include <map>

namespace mui::test {

struct EventCounter : MuObserver {
  std::map<int, int> byCode;
  int total = 0;
  void handleEvent(MuElement*, int event) override {
    ++byCode[event];
    ++total;
  }
};

} // namespace mui::test
