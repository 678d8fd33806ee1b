// gallery::GalleryForm: one form that shows every control of the toolkit in
// each of its states (enabled, disabled, locked, set, unset, mixed, the
// default button), built only with the toolkit's own operations, so that it
// comes up on whichever binding is installed: a person looks at it on Qt, and
// tests check where each control stands.
#pragma once

#include "mui/MuButtonBar.h"
#include "mui/MuDialog.h"
#include "mui/MuEdit.h"
#include "mui/MuInfoFrame.h"
#include "plat/Markup.h"

#include <memory>

namespace gallery {

/// The form's link shows the message frame; the frame's link hides it; OK
/// and Cancel close the dialog as its close box does.
class GalleryForm : public mui::MuObserver, public plat::Markup::LinkCallback {
public:
  /// Builds the form in a hidden dialog.
  GalleryForm();
  ~GalleryForm();
  GalleryForm(const GalleryForm&) = delete;
  GalleryForm& operator=(const GalleryForm&) = delete;

  mui::MuDialog* dialog() const noexcept { return dialog_.get(); }
  mui::MuInfoFrame& message() const noexcept { return *message_; }

  void clicked(mui::MuElement* source) override;
  void linkClicked(const char* url) override;

private:
  void buildStatics(mui::MuContainer* parent);

  /// The percent box's filter; it outlives the dialog, as filters must.
  mui::MuEdit::NumericFilter percent_{0, 100};
  std::unique_ptr<mui::MuDialog> dialog_;
  std::unique_ptr<mui::MuInfoFrame> message_;
  std::unique_ptr<mui::MuButtonBar> buttonBar_;
};

} // namespace gallery
