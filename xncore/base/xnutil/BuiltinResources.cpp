#include "xnutil/BuiltinResources.h"

#include "plat/NameCompare.h"
#include "plat/String.h"

#include <map>

namespace xnutil {

namespace {

// Built on first use, since the generated tables enter their resources from
// static initialisers.
std::map<plat::String, BuiltinResource, plat::NoCaseLess>& table() {
  static std::map<plat::String, BuiltinResource, plat::NoCaseLess> resources;
  return resources;
}

} // namespace

BuiltinResource findBuiltinResource(const char* name) {
  const auto found = table().find(plat::String(name));
  return found == table().end() ? BuiltinResource() : found->second;
}

void addBuiltinResource(const char* name, const void* data, std::size_t length) {
  table()[plat::String(name)] = {static_cast<const std::uint8_t*>(data), length};
}

void removeBuiltinResource(const char* name) {
  table().erase(plat::String(name));
}

} // namespace xnutil
