// gallery::GalleryForm: one form that shows every control of the toolkit in
// each of its states (enabled, disabled, locked, set, unset, mixed, the
// default button), built only with the toolkit's own operations, so that it
// comes up on whichever binding is installed: a person looks at it on Qt, and
// tests check where each control stands.
#pragma once

#include "mui/MuDialog.h"
#include "mui/MuEdit.h"

#include <memory>

namespace gallery {

class GalleryForm {
public:
  /// Builds the form in a hidden dialog.
  GalleryForm();
  ~GalleryForm();
  GalleryForm(const GalleryForm&) = delete;
  GalleryForm& operator=(const GalleryForm&) = delete;

  mui::MuDialog* dialog() const noexcept { return dialog_.get(); }

private:
  /// The percent box's filter; it outlives the dialog, as filters must.
  mui::MuEdit::NumericFilter percent_{0, 100};
  std::unique_ptr<mui::MuDialog> dialog_;
};

} // namespace gallery
