#include "oxnpermissionscreator/CommandLine.h"

#include "plat/DString.h"

namespace app {

namespace {

struct ArgumentStore {
  std::vector<plat::String> arguments;
  std::vector<const char*> pointers{nullptr};
};

ArgumentStore& argumentStore() {
  static ArgumentStore store;
  return store;
}

bool isBlank(char ch) {
  return ch == ' ' || ch == '\t';
}

} // namespace

std::vector<plat::String> splitCommandLine(const char* line) {
  std::vector<plat::String> arguments;
  if (!line)
    return arguments;
  plat::DString current("");
  bool inArgument = false;
  bool quoted = false;
  for (const char* cursor = line; *cursor;) {
    if (isBlank(*cursor) && !quoted) {
      if (inArgument)
        arguments.push_back(plat::String(current.get()));
      current.clear();
      inArgument = false;
      ++cursor;
      continue;
    }
    inArgument = true;
    if (*cursor == '\\') {
      const char* run = cursor;
      while (*cursor == '\\')
        ++cursor;
      int count = static_cast<int>(cursor - run);
      if (*cursor != '"') {
        current.appendChar('\\', count);
        continue;
      }
      current.appendChar('\\', count / 2);
      if (count % 2 == 1) {
        current.append("\"");
        ++cursor;
      }
      // With an even run the quote stays, to toggle quoting below.
      continue;
    }
    if (*cursor == '"')
      quoted = !quoted;
    else
      current.append(cursor, 1);
    ++cursor;
  }
  if (inArgument)
    arguments.push_back(plat::String(current.get()));
  return arguments;
}

void setProcessArguments(std::vector<plat::String> arguments) {
  ArgumentStore& store = argumentStore();
  store.arguments = std::move(arguments);
  store.pointers.clear();
  for (const plat::String& argument : store.arguments)
    store.pointers.push_back(argument.get());
  store.pointers.push_back(nullptr);
}

const char* const* processArguments() {
  return argumentStore().pointers.data();
}

int processArgumentCount() {
  return static_cast<int>(argumentStore().arguments.size());
}

} // namespace app
