#include "sysauth/SecurityPrincipalList.h"

#include "plat/Assertion.h"
#include "plat/NameCompare.h"
#include "plat/StringUtils.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace sysauth {

namespace {

// Users before groups; within a kind, by the name shown with ASCII case folded.
bool sortsBefore(bool isGroupA, const char* nameA, bool isGroupB, const char* nameB) noexcept {
  if (isGroupA != isGroupB)
    return isGroupB;
  return plat::compareNoCase(nameA, nameB) < 0;
}

// What the order needs of an entry, at hand without following the pointer.
struct Keyed {
  bool isGroup;
  const char* name;
  std::unique_ptr<SecurityPrincipal> principal;
};

} // namespace

void SecurityPrincipalList::parse(const char* text, bool dropInvalid) {
  clear();
  // Sorting the entries once, stably, puts each where inserting them one by one
  // would: behind those that sort before or equal to it. Each display name is
  // asked for once, not at every comparison.
  std::vector<Keyed> read;
  auto place = [&] {
    std::stable_sort(read.begin(), read.end(), [](const Keyed& a, const Keyed& b) {
      return sortsBefore(a.isGroup, a.name, b.isGroup, b.name);
    });
    principals_.reserve(read.size());
    for (Keyed& entry : read)
      principals_.push_back(std::move(entry.principal));
  };
  plat::String entries(text);
  try {
    for (char* cursor = entries.data(); cursor;) {
      const char* entry = plat::nextToken(cursor, ',');
      if (!entry || !*entry)
        continue;
      auto principal = std::make_unique<SecurityPrincipal>();
      if (!principal->parse(entry, nullptr) && dropInvalid)
        continue;
      const char* name = principal->displayNameText();
      read.push_back({principal->isGroup, name, std::move(principal)});
    }
  } catch (...) {
    place();
    throw;
  }
  place();
}

plat::String SecurityPrincipalList::render() const {
  std::string text;
  text.reserve(200 * principals_.size() + 1);
  for (std::size_t i = 0; i < principals_.size(); ++i) {
    if (i > 0)
      text += ',';
    principals_[i]->appendTo(text);
  }
  return plat::String(text.c_str());
}

int SecurityPrincipalList::add(std::unique_ptr<SecurityPrincipal> principal) {
  // A walk from the start rather than a halving search: a name the resolver
  // could not give before may have come since, and then the list is no longer
  // in order, while the place must still be in front of the first entry that
  // the new one sorts before.
  const char* name = principal->displayNameText();
  bool isGroup = principal->isGroup;
  auto place = std::find_if(principals_.begin(), principals_.end(),
                            [&](const std::unique_ptr<SecurityPrincipal>& existing) {
                              return sortsBefore(isGroup, name, existing->isGroup,
                                                 existing->displayNameText());
                            });
  auto inserted = principals_.insert(place, std::move(principal));
  return static_cast<int>(inserted - principals_.begin());
}

void SecurityPrincipalList::checkIndex(int index) const {
  // The expression is spelt out, as the reports have always named it.
  if (index < 0 || index >= size())
    plat::assertionFailed(
        plat::AssertionFail("index >=0 && index < (int)principals.size()", __FILE__, __LINE__));
}

int SecurityPrincipalList::find(const char* id, bool isGroup) const {
  for (std::size_t i = 0; i < principals_.size(); ++i) {
    const SecurityPrincipal& principal = *principals_[i];
    if (principal.isGroup == isGroup && std::strcmp(principal.id.get(), id) == 0)
      return static_cast<int>(i);
  }
  return -1;
}

SecurityPrincipal& SecurityPrincipalList::at(int index) {
  checkIndex(index);
  return *principals_[static_cast<std::size_t>(index)];
}

void SecurityPrincipalList::removeAt(int index) {
  checkIndex(index);
  principals_.erase(principals_.begin() + index);
}

} // namespace sysauth
