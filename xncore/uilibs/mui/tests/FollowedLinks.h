// A link callback for tests that keeps every link it was asked to follow.
#pragma once

#include "plat/Markup.h"

#include <string>
#include <vector>

namespace mui::test {

struct FollowedLinks : plat::Markup::LinkCallback {
  std::vector<std::string> urls;
  void linkClicked(const char* url) override { urls.push_back(url); }
};

} // namespace mui::test
