#include "loc/TransMap.h"

#include "loc/Localize.h"
#include "plat/Assertion.h"

namespace loc {

namespace {
thread_local TransMap* threadMap = nullptr;
}

TransMap::TransMap() : previous_(threadMap) {
  threadMap = this;
}

TransMap::TransMap(ProcessTag)
    : locales_{plat::String("en_US"), plat::String("en")}, isProcess_(true) {}

TransMap::~TransMap() {
  if (isProcess_)
    return;
  TransMap* thrInst = threadMap;
  XN_ASSERT(thrInst == this);
  threadMap = previous_;
}

TransMap& TransMap::process() {
  // Never destroyed: texts are read until the very end of the process.
  static TransMap* map = new TransMap(ProcessTag{});
  return *map;
}

TransMap& TransMap::current() {
  return threadMap ? *threadMap : process();
}

} // namespace loc
