// plat::NonCopyable: the base of objects that have an identity of their own,
// such as parameters and log sources that register their address in a list.
// Copying one would register a second object under the same name, so copying
// and assigning are forbidden.
#pragma once

namespace plat {

class NonCopyable {
public:
  NonCopyable(const NonCopyable&) = delete;
  NonCopyable& operator=(const NonCopyable&) = delete;

protected:
  NonCopyable() = default;
  ~NonCopyable() = default;
};

} // namespace plat
