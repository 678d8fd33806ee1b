// What the actions of the driving interface share: the state an element must
// be in before an action may operate it, and how an action reads a number
// from its argument.
#pragma once

namespace mui {

class MuElement;

/// Whether an action may operate `element`: it must be neither disabled nor
/// locked and, with `needsShown`, shown together with all its ancestors.
bool canPerform(MuElement* element, bool needsShown);

/// The decimal number at the start of `argument`, as an action reads it; 0
/// when it holds none.
int decimalArgument(const char* argument);

} // namespace mui
