// app::NativeUi: the platform's part of the program's user interface for one
// run. It is made before the application loop, since it holds what the loop
// and the toolkit stand on (the platform's application object and the loop's
// native message queue); installToolkit() then makes the toolkit's root and
// installs every element factory. It goes after the loop.
#pragma once

#include <memory>

namespace app {

class NativeUi {
public:
  virtual ~NativeUi() = default;
  /// Makes the toolkit's root, installs it as the root and installs the
  /// binding's element factories.
  virtual void installToolkit() = 0;
};

/// The platform's application object and the loop's message queue, installed.
std::unique_ptr<NativeUi> makeNativeUi();

} // namespace app
