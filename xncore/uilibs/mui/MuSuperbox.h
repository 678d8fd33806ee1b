// mui::MuSuperbox: a one-line text box beside its caption, with a popup
// dialog under it that the application fills (a list of suggestions, say)
// and opens when the user asks with the drop-down key. The box's keys pass
// a filter first: the owner's callback, then Tab, Return and Escape close
// the popup, a first Escape doing nothing else. A press elsewhere, or the
// box losing the focus, closes the popup too.
#pragma once

#include "mui/LabelWrapper.h"
#include "mui/MuElement.h"
#include "mui/PopupDismisser.h"

#include <memory>

namespace mui {

class MuDialog;

class MuSuperbox : public MuElement, public LabelWrapper::MinSizeCallback {
public:
  class Callback {
  public:
    virtual ~Callback() = default;
    /// A key pressed in the box; true when the owner handled it.
    virtual bool keyPressed(MuSuperbox* superbox, int keysym) = 0;
  };

  static MuSuperbox* create(MuContainer* parent, const char* name, const char* label,
                            Callback* callback, int popupHeight);

  /// This for 0, else null.
  virtual MuElement* childAt(int index);
  /// Opens the popup under the box, as wide as the box; or closes it.
  virtual void showPopup(bool show);
  virtual plat::String getText() = 0;
  /// Raises no event; the text is selected when the box has the focus.
  virtual void setText(const char* text) = 0;
  /// The grey hint an empty box shows.
  virtual void setCue(const char* text);
  /// The rectangle of the text box in its dialog's client area.
  virtual Rect getEditRect();

  /// The popup dialog, to be filled by the application.
  MuDialog* getPopup() const noexcept { return popup_.get(); }
  bool isPopupShown();
  /// What the box does with a key before the text box gets it: true when the
  /// key is used up.
  bool filterKey(int keysym);
  /// The drop-down key (F4, Alt with Up or Down): an open popup closes; for
  /// a closed one EventClicked lets the owner decide.
  void dropDownKey();
  /// What hides the popup; the binding feeds it the user's presses.
  PopupDismisser& dismisser() noexcept { return dismisser_; }

  /// The caption's text, the box's least width and 4 pixels.
  int minWidth(int height) override;
  void setLabelLayout(int labelWidth, int controlWidth) override;
  int labelWidth() override;
  int minControlHeight() override;
  const char* typeName() override;
  plat::String describe() override;
  /// "settext" with a text: sets it and raises EventChanged; "pressenter":
  /// Return through the key filter. Both only while the box is idle.
  bool perform(const char* action, const char* argument) override;

  ~MuSuperbox() override;

protected:
  MuSuperbox(MuContainer* parent, const char* name, const char* label, Callback* callback,
             int popupHeight);

  /// Binding: the height of the text box with its frame.
  virtual int boxHeight() = 0;
  /// Binding: the user changed the text.
  void textChangedByUser() { notify(this, EventChanged); }

private:
  Callback* callback_;
  std::unique_ptr<MuDialog> popup_;
  PopupDismisser dismisser_;
};

using MuSuperboxFactory = MuSuperbox* (*)(MuContainer* parent, const char* name, const char* label,
                                          MuSuperbox::Callback* callback, int popupHeight);
extern MuSuperboxFactory muSuperboxFactory;

} // namespace mui
