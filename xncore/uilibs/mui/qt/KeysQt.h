// Qt's keys as the keysyms that the toolkit's logic compares.
#pragma once

class QKeyEvent;

namespace mui {

/// The keysym of a key press: named keys by their X keysym, characters by
/// their code point (Latin-1 as is, others above 0x01000000); 0 if none.
int keysymFromQt(const QKeyEvent* event);

} // namespace mui
