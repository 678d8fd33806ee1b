// mui::LabelWrapper: the caption beside an edit, a choice or a superbox, and
// the measure that aligns captions across a form. The caption is the element's
// label; a '&' in it marks the letter that gives the focus to the control
// ("&&" shows one '&'). A null or empty label means no caption.
//
// A binding makes the peer of such a control a subclass of its MuCommon and of
// this class: the peer's minWidth() and minHeight() are measureWidth() and
// measureHeight(), and after the peer took a new size it calls reposition().
// The control's class supplies its own least size through a MinSizeCallback.
// The control's abstract class forwards the two label operations of MuElement
// with setLabelLayoutOf() and labelWidthOf().
//
// To align the captions of a form, ask each control for labelWidth(), take the
// largest, add Mui::metric(MetricLabelGap), and call setLabelLayout(that, -1)
// on each: a caption column of that width, and controls that take the rest.
// alignCaptions() does just that.
#pragma once

#include "mui/Geometry.h"

#include <vector>

namespace mui {

class MuElement;

class LabelWrapper {
public:
  /// The control's least size, without its caption. The names differ from
  /// MuElement's measures, so that a control's element can implement both.
  class MinSizeCallback {
  public:
    virtual int minControlWidth() { return 0; }
    virtual int minControlHeight() = 0;
    virtual ~MinSizeCallback() = default;
  };

  /// Where the caption and the control go, in the wrapper's coordinates.
  struct Arrangement {
    /// Empty when there is no caption.
    Rect caption;
    Rect control;
  };

  /// `control` must outlive the wrapper; it is usually the control's native half.
  LabelWrapper(MuElement* element, MinSizeCallback* control);
  virtual ~LabelWrapper() = default;
  LabelWrapper(const LabelWrapper&) = delete;
  LabelWrapper& operator=(const LabelWrapper&) = delete;

  /// The wrapper that is `element`'s peer, or null.
  static LabelWrapper* of(MuElement* element);
  /// setLabelLayout() of `element`'s wrapper; nothing without one.
  static void setLabelLayoutOf(MuElement* element, int labelWidth, int controlWidth);
  /// labelWidth() of `element`'s wrapper; without one, the element's own.
  static int labelWidthOf(MuElement* element);
  /// One caption column for all of `elements`, as wide as the widest caption
  /// and the gap; the controls take the rest.
  static void alignCaptions(const std::vector<MuElement*>& elements);

  bool hasCaption() const;
  /// Stores both widths and places caption and control again. A width of 0 is
  /// the natural one (the caption's text and the gap; the control's minimum);
  /// a positive one is fixed, the caption's including the gap; negative widths
  /// are weights in which the two share what the fixed ones leave.
  void setLabelLayout(int labelWidth, int controlWidth);
  int labelWidthSetting() const noexcept { return labelWidth_; }
  int controlWidthSetting() const noexcept { return controlWidth_; }
  /// The width of the caption's text on one line; 0 without a caption.
  int labelWidth();

  /// The control's least width, plus the caption's text and, unless a label
  /// width was given, the gap.
  int measureWidth();
  /// The greater of the control's least height and the caption's height when
  /// the wrapper is `width` wide; 0 below a width of 1.
  int measureHeight(int width);
  /// Where caption and control go in a wrapper of `size`.
  Arrangement arrange(Size size);
  /// Places caption and control for the wrapper's present size.
  void reposition();

protected:
  MuElement* wrappedElement() const noexcept { return element_; }

  /// The caption's text on one line.
  virtual Size captionTextSize() = 0;
  /// The caption's height when it wraps at `width`.
  virtual int captionHeight(int width) = 0;
  /// The height of the centre of the control's text line, in the wrapper's
  /// coordinates, when the control stands at `control`; false when the
  /// control has no text line to align to, and the caption is centred instead.
  virtual bool controlTextCentre(const Rect& control, int* centre);
  virtual Size wrapperSize() = 0;
  /// Moves the native caption and control to `arrangement`.
  virtual void place(const Arrangement& arrangement) = 0;

private:
  MuElement* element_;
  MinSizeCallback* control_;
  int labelWidth_ = 0;
  int controlWidth_ = 0;
};

} // namespace mui
