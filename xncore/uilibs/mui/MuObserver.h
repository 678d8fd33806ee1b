// mui::MuObserver: how the toolkit reports user actions to the owner of a
// form. handleEvent() is the entry; its default dispatches to the four
// specific operations. An observer that needs the other events overrides
// handleEvent and calls the default too.
#pragma once

namespace mui {

class MuElement;
class MuDialog;

class MuObserver {
public:
  virtual void handleEvent(MuElement* source, int event);
  virtual void clicked(MuElement* source);
  virtual void changed(MuElement* source);
  virtual void dialogClosed(MuDialog* dialog);
  virtual void dialogResized(MuDialog* dialog);
  virtual ~MuObserver() = default;
};

} // namespace mui
