// smisc::PickedObject: one user or group chosen in the directory object
// picker, as the picker hands it over.
#pragma once

#include "os/Sid.h"
#include "plat/String.h"

#include <optional>

namespace smisc {

struct PickedObject {
  /// The object's system id; absent when the picker could not tell it.
  std::optional<os::Sid> sid;
  plat::String name;
  /// Where the object lives in its directory.
  plat::String path;
  /// The user principal name; empty when there is none.
  plat::String upn;
  /// Anything that isn't a plain user counts as a group.
  bool isGroup = true;
};

} // namespace smisc
