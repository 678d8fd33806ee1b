// mui::MuInfoFrame: a message box inside a form: an icon of the message's
// kind beside a text, on the help colours, with an optional link under the
// text. It is built of other elements and kept by value by the form that
// shows it; it starts hidden and shows whenever it has a message. Its link
// goes to the link callback as "app://infoframe//<frame's name>".
#pragma once

#include "plat/Markup.h"

namespace mui {

class MuContainer;
class MuFrame;
class MuImage;
class MuLayout;
class MuSpacer;
class MuText;

class MuInfoFrame {
public:
  enum Kind : int {
    Success = 1,
    Warning = 2,
    Error = 3,
    Locked = 4,
    Default = 5,
    Preference = 6,
    /// Any other value.
    Notify = 0,
  };

  /// Makes the hidden frame of `frameType` at the end of `parent`.
  MuInfoFrame(MuContainer* parent, const char* name, plat::Markup::LinkCallback* linkCallback,
              int frameType);
  /// Takes the frame out of its parent.
  ~MuInfoFrame();
  MuInfoFrame(const MuInfoFrame&) = delete;
  MuInfoFrame& operator=(const MuInfoFrame&) = delete;

  /// Shows `text` with the icon of `kind` and, unless `linkText` is null, a
  /// link of that text under it; a null `text` hides the frame.
  void setMessage(int kind, const char* text, const char* linkText);
  /// Shows or hides the frame, laying its parent out again on a change.
  void setShown(bool shown);

  /// The image name of a message kind's icon.
  static const char* imageOf(int kind);

  MuFrame* frame() const noexcept { return frame_; }
  MuText* text() const noexcept { return text_; }
  /// Null while there is no link.
  MuText* link() const noexcept { return link_; }

private:
  plat::Markup::LinkCallback* linkCallback_;
  MuContainer* parent_;
  MuFrame* frame_;
  MuLayout* row_;
  MuImage* icon_;
  MuLayout* textColumn_;
  MuText* text_;
  MuSpacer* linkGap_ = nullptr;
  MuText* link_ = nullptr;
};

} // namespace mui
