// mui::MuButton: a push button, an image button with its label drawn over the
// image, or a link. The abstract half keeps the kind, the options, the
// alignment, the text margins and the name of the image, measures the button
// from its text and the house metrics, and raises EventClicked when the user
// presses it or an action clicks it. The binding draws it and loads images.
#pragma once

#include "mui/MuElement.h"

namespace rfb {
class PixelBuffer;
}

namespace mui {

class MuButton : public MuElement {
public:
  enum Type : int {
    Normal = 0,
    /// The image, one per state, is the button; the label goes over it inside the text margins.
    Custom = 1,
    /// Underlined text in the link colour, a hand cursor, no frame.
    Hyperlink = 2,
  };
  enum Options : int {
    /// 40 units at the right show a down arrow.
    DropDown = 0x01,
    /// Never takes the focus and is no tab stop.
    NoFocus = 0x02,
    /// The frame shows only while the pointer is over the button or it is pressed.
    HotFrame = 0x04,
    /// No frame and no least sizes.
    Flat = 0x08,
    /// After each click the focus goes back to the window.
    FocusBack = 0x10,
  };
  /// Where the label (or, without one, the image) stands.
  enum TextAlign : int { AlignLeft = 0, AlignCentre = 1, AlignRight = 2 };
  /// Images per state; a state without one shows the normal image.
  enum ImageState : int { ImageNormal = 0, ImageHot = 1, ImagePressed = 2 };

  static MuButton* create(MuContainer* parent, const char* name, const char* label,
                          int type = Normal, int options = 0, int textAlign = AlignCentre);

  /// The caption; the binding shows it.
  virtual void setLabel(const char* label);
  /// The named image for `state`, scaled to `size` when given. State 0 keeps the name.
  virtual void setImage(const char* name, const Size* size, int state);
  /// An image in hand for `state`; with `own` the button deletes the buffer.
  virtual void setImageBuffer(rfb::PixelBuffer* buffer, bool own, int state) = 0;
  /// The room left free around the label of a Custom button; null means none.
  virtual void setTextMargins(const Point* topLeft, const Point* bottomRight);
  /// The system's sign that the action needs higher rights, where the platform has one.
  virtual void setShield(bool shield);

  int minWidth(int height) override;
  int minHeight(int width) override;
  const char* typeName() override;
  plat::String describe() override;
  /// "click": EventClicked, if the button is idle.
  bool perform(const char* action, const char* argument) override;

  int buttonType() const noexcept { return buttonType_; }
  int options() const noexcept { return options_; }
  int textAlign() const noexcept { return textAlign_; }
  bool isFlat() const noexcept { return (options_ & Flat) != 0; }
  /// Left, top, right and bottom margins of a Custom button's label.
  const int* textMargins() const noexcept { return textMargins_; }
  const char* imageName() const noexcept { return imageName_.get(); }
  bool hasLabel() const noexcept { return label() && *label(); }
  /// Pixels between an image and its label.
  static int imageGap();
  /// Pixels of the column that a drop-down button's arrow takes.
  static int dropDownWidth();
  /// Pixels that a framed button keeps round its label, both sides together.
  int labelPadding();

protected:
  MuButton(MuContainer* parent, const char* name, const char* label, int type, int options,
           int textAlign);

  /// Binding: the size of the normal image in pixels; empty when there is none.
  virtual Size imageSize() = 0;
  /// Binding: whether a shield is shown, which takes room.
  virtual bool showsShield() { return false; }
  /// Binding: the room that the native frame takes around the content of a
  /// framed button; the house padding grows to it, so that nothing clips.
  virtual Size nativeFramePadding() { return {}; }
  /// Binding: the user pressed and released the button, or pressed its key.
  void clickedByUser() { notify(this, EventClicked); }

private:
  int customMinWidth(int height);
  int customMinHeight(int width);

  int buttonType_;
  int options_;
  int textAlign_;
  int textMargins_[4] = {0, 0, 0, 0};
  plat::String imageName_;
};

/// The hook through which MuButton::create makes the binding's button.
using MuButtonFactory = MuButton* (*)(MuContainer* parent, const char* name, const char* label,
                                      int type, int options, int textAlign);
extern MuButtonFactory muButtonFactory;

} // namespace mui
