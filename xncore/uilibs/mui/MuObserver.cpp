#include "mui/MuObserver.h"

#include "mui/MuDialog.h"
#include "mui/MuElement.h"
#include "plat/Assertion.h"

namespace mui {

namespace {

// The dialog at the root of `element`'s tree: the events that concern a
// whole dialog are delivered with it rather than with the raising element.
MuDialog* dialogOf(MuElement* element) {
  XN_ASSERT(element);
  return element->rootDialog();
}

} // namespace

void MuObserver::handleEvent(MuElement* source, int event) {
  switch (event) {
  case EventChanged:
    changed(source);
    break;
  case EventClicked:
    clicked(source);
    break;
  case EventClosed:
    dialogClosed(dialogOf(source));
    break;
  case EventResized:
    dialogResized(dialogOf(source));
    break;
  default:
    break;
  }
}

void MuObserver::clicked(MuElement*) {}
void MuObserver::changed(MuElement*) {}
void MuObserver::dialogClosed(MuDialog*) {}
void MuObserver::dialogResized(MuDialog*) {}

} // namespace mui
