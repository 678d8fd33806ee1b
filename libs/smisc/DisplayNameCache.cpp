#include "smisc/DisplayNameCache.h"

namespace smisc {

plat::String DisplayNameCache::resolveDisplayName(const char* id, const char* enteredId,
                                                  bool isGroup) {
  Key key{id, enteredId != nullptr, enteredId ? enteredId : "", isGroup};
  auto known = names_.find(key);
  if (known == names_.end()) {
    plat::String name = lookUpDisplayName(id, enteredId, isGroup);
    known =
        names_.emplace(key, name.isNull() ? std::nullopt : std::optional<std::string>(name.get()))
            .first;
  }
  return known->second ? plat::String(known->second->c_str()) : plat::String();
}

} // namespace smisc
