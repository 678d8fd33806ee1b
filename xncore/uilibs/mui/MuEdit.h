// mui::MuEdit: a text box of one line, of one hidden line for a password, or
// of many lines, with its caption beside it (LabelWrapper). The binding holds
// the text. The abstract half measures the box, decides with the edit's
// Filter whether an input of the user may reach the control (EditInput), and
// raises EventChanged when the user changed the text; the program's own
// setText() raises nothing.
#pragma once

#include "mui/LabelWrapper.h"
#include "mui/MuElement.h"

namespace mui {

class EditText;
struct EditInput;

class MuEdit : public MuElement, public LabelWrapper::MinSizeCallback {
public:
  enum Type : int { Text = 0, Password = 1, Multiline = 2 };
  enum Options : int { NoBorder = 0x01 };

  /// Decides whether an input may change the text.
  class Filter {
  public:
    virtual ~Filter() = default;
    /// `newText` is all the text the edit would have afterwards, `typedChar`
    /// the character typed, or 0 for a deletion or a paste.
    virtual bool accept(MuEdit* edit, const char* newText, int typedChar) = 0;
  };

  /// Whole numbers from `min` to `max` in decimal, and what can be typed on
  /// the way to one: the empty text, and a lone "-" where negatives are allowed.
  class NumericFilter : public Filter {
  public:
    NumericFilter(int min, int max) : min_(min), max_(max) {}
    bool accept(MuEdit* edit, const char* newText, int typedChar) override;

  private:
    int min_;
    int max_;
  };

  static MuEdit* create(MuContainer* parent, const char* name, const char* label, int type = Text,
                        int options = 0);

  /// Raises no event.
  virtual void setText(const char* text) = 0;
  virtual plat::String getText() = 0;
  /// The grey hint an empty edit shows.
  virtual void setCue(const char* text);
  /// Selects `length` bytes of UTF-8 from byte `start`: -1 to the end; a
  /// start below 0 selects nothing; a start beyond the text is its end.
  virtual void select(int start, int length) = 0;
  /// The selection's start in UTF-8 bytes; its length goes to `length`.
  virtual int getSelection(int* length) = 0;
  /// The filter stays the caller's and must outlive the edit; null removes
  /// it. The binding forgets what could be undone.
  virtual void setFilter(Filter* filter);
  /// The height of the edit with room for `rows` lines of text.
  virtual int heightForRows(int rows);

  /// The caption's text, the control's least width and 4 pixels.
  int minWidth(int height) override;
  /// The caption's height or one line, at least the house control height, and
  /// a line more for each further line that a multi-line text wraps into.
  int minHeight(int width) override;
  void setLabelLayout(int labelWidth, int controlWidth) override;
  int labelWidth() override;
  const char* typeName() override;
  /// The value is "<hidden>" for a password.
  plat::String describe() override;
  /// "settext" with a text: sets it, then EventChanged, if the edit is idle.
  bool perform(const char* action, const char* argument) override;

  int minControlHeight() override;

  int editType() const noexcept { return editType_; }
  int options() const noexcept { return options_; }
  Filter* filter() const noexcept { return filter_; }
  /// The least height the edit ever reports.
  void setMinHeight(int height) noexcept { minHeight_ = height; }

  /// Whether `input` may reach the control, the edit's text standing as
  /// `text`: the filter decides on the text it would make, unless the input
  /// passes unfiltered or is swallowed. `text` becomes the text the filter
  /// was asked about.
  bool admitsInput(EditText& text, const EditInput& input);

protected:
  MuEdit(MuContainer* parent, const char* name, const char* label, int type, int options);

  /// Binding: the height of a line of the edit's text.
  virtual int lineHeight() = 0;
  /// Binding: how many lines the text takes in a control `width` wide.
  virtual int lineCount(int width) = 0;
  /// Binding: the height that the native frame and margins add to the text.
  virtual int nativeFrameHeight() { return 0; }
  /// Binding: the user changed the text.
  void textChangedByUser() { notify(this, EventChanged); }

private:
  /// The height of the edit's first line with its caption at `width`.
  int firstLineHeight(int width);

  int editType_;
  int options_;
  int minHeight_ = 0;
  Filter* filter_ = nullptr;
};

/// The hook through which MuEdit::create makes the binding's edit.
using MuEditFactory = MuEdit* (*)(MuContainer* parent, const char* name, const char* label,
                                  int type, int options);
extern MuEditFactory muEditFactory;

} // namespace mui
