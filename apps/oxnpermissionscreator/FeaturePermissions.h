// The seven feature permissions of this program, defined once for the life of
// the process.
#pragma once

namespace app {

/// Constructs the feature permission objects in their fixed order, so that
/// their letters follow the built-in ones; later calls do nothing. They are
/// destroyed, and their letters undefined, at process exit.
void defineFeaturePermissions();

} // namespace app
