// An observer for tests of controls: it writes down each event it sees as
// "<source name> <event word>", so that a test states the events an
// operation must raise, and that it raises no others.
#pragma once

#include "mui/MuElement.h"

#include <string>
#include <vector>

namespace mui::test {

struct EventLog : MuObserver {
  std::vector<std::string> events;

  void handleEvent(MuElement* source, int event) override {
    static const char* const words[] = {"changed", "clicked",  "activated", "closed",
                                        "active",  "inactive", "resized",   "theme"};
    const char* name = source && source->name() ? source->name() : "?";
    events.push_back(std::string(name) + " " + words[event]);
  }
  /// The events seen since the last call, and forgets them.
  std::vector<std::string> take() { return std::exchange(events, {}); }
};

} // namespace mui::test
