// The caption beside a control on the headless binding: where caption and
// control go for each way of giving their widths, how the wrapper measures,
// and how a form's captions line up.
#include "mui/LabelWrapper.h"

#include "HeadlessForm.h"

#include "mui/Mui.h"
#include "mui/headless/LabelWrapperHeadless.h"

#include <climits>

namespace mui::test {
namespace {

// At "ppmm" 4: a code point is 7 pixels wide and a line 16 high; the label gap
// is 4 pixels. The control wants 100 by 24.
constexpr int controlMinWidth = 100;
constexpr int controlMinHeight = 24;

// A control with a caption, as the input controls make one: the abstract half
// forwards the label operations to its wrapper.
class WrappedControl : public MuElement, public LabelWrapper::MinSizeCallback {
public:
  static WrappedControl* create(MuContainer* parent, const char* name, const char* label) {
    auto* control = new WrappedControl(parent, name, label);
    parent->add(control);
    return control;
  }
  LabelWrapperHeadless* wrapper() { return static_cast<LabelWrapperHeadless*>(common()); }

  void setLabelLayout(int labelWidth, int controlWidth) override {
    LabelWrapper::of(this)->setLabelLayout(labelWidth, controlWidth);
  }
  int labelWidth() override { return LabelWrapper::of(this)->labelWidth(); }
  int minControlWidth() override { return controlMinWidth; }
  int minControlHeight() override { return controlMinHeight; }

private:
  WrappedControl(MuContainer* parent, const char* name, const char* label)
      : MuElement(parent, name, label) {
    MuCommonHeadless::Traits traits;
    traits.focusable = true;
    setCommon(std::make_unique<LabelWrapperHeadless>(this, this, traits));
  }
};

using Wrapper = HeadlessForm;

struct ArrangeCase {
  const char* what;
  const char* label;
  int labelWidth;
  int controlWidth;
  Size size;
  Rect caption;
  Rect control;
};

TEST_F(Wrapper, ArrangesCaptionAndControlForEachWayOfGivingTheirWidths) {
  const ArrangeCase cases[] = {
      {"no caption: the control takes everything", nullptr, 0, 0, {300, 40}, {}, {0, 0, 300, 40}},
      {"an empty caption is none", "", 60, -1, {300, 40}, {}, {0, 0, 300, 40}},
      {"natural widths, centred on each other",
       "Name:",
       0,
       0,
       {300, 40},
       {0, 12, 35, 28},
       {39, 8, 139, 32}},
      {"the mnemonic mark takes no room",
       "&Name:",
       0,
       0,
       {300, 40},
       {0, 12, 35, 28},
       {39, 8, 139, 32}},
      {"a caption column and a control that takes the rest",
       "Name:",
       60,
       -1,
       {300, 24},
       {0, 4, 56, 20},
       {60, 0, 300, 24}},
      {"weights share the whole width",
       "Name:",
       -1,
       -3,
       {400, 24},
       {0, 4, 96, 20},
       {100, 0, 400, 24}},
      {"a fixed control width", "Name:", 0, 150, {300, 24}, {0, 4, 35, 20}, {39, 0, 189, 24}},
      {"too narrow: the caption wraps and grows",
       "Display name of the group",
       0,
       0,
       {150, 64},
       {0, 0, 46, 64},
       {50, 20, 150, 44}},
      {"the control never grows taller than it wants",
       "Name:",
       0,
       0,
       {300, 200},
       {0, 92, 35, 108},
       {39, 88, 139, 112}},
      {"nor taller than the wrapper, where the caption is cut at its foot",
       "Name:",
       0,
       0,
       {300, 10},
       {0, 0, 35, 16},
       {39, 0, 139, 10}},
  };
  for (const ArrangeCase& c : cases) {
    WrappedControl* control = WrappedControl::create(dialog.get(), "c", c.label);
    control->setLabelLayout(c.labelWidth, c.controlWidth);
    control->setSize(c.size);
    EXPECT_EQ(control->wrapper()->placed().caption, c.caption) << c.what;
    EXPECT_EQ(control->wrapper()->placed().control, c.control) << c.what;
    dialog->removeChild(control);
  }
}

TEST_F(Wrapper, MeasuresTheControlWithItsCaption) {
  WrappedControl* control = WrappedControl::create(dialog.get(), "c", "&Name:");
  EXPECT_EQ(control->labelWidth(), 35);
  EXPECT_EQ(control->minWidth(0), controlMinWidth + 4 + 35);
  EXPECT_EQ(control->minHeight(300), controlMinHeight);
  EXPECT_EQ(control->minHeight(0), 0);
  // A given caption column holds the gap already.
  control->setLabelLayout(60, -1);
  EXPECT_EQ(control->minWidth(0), controlMinWidth + 35);

  WrappedControl* wrapping = WrappedControl::create(dialog.get(), "w", "Display name of the group");
  EXPECT_EQ(wrapping->minHeight(150), 64); // four lines beside the control
  EXPECT_EQ(wrapping->minHeight(INT_MAX / 2), controlMinHeight);

  WrappedControl* bare = WrappedControl::create(dialog.get(), "b", nullptr);
  EXPECT_EQ(bare->labelWidth(), 0);
  EXPECT_EQ(bare->minWidth(0), controlMinWidth);
  // A bigger font makes a wider caption.
  control->setFontSize(240);
  EXPECT_EQ(control->labelWidth(), 5 * 14);
}

TEST_F(Wrapper, TheCaptionsOfAFormLineUp) {
  MuLayout* column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
  WrappedControl* type = WrappedControl::create(column, "type", "Type:");
  WrappedControl* name = WrappedControl::create(column, "name", "Display name:");
  const int captionColumn =
      std::max(type->labelWidth(), name->labelWidth()) + Mui::metric(MetricLabelGap);
  EXPECT_EQ(captionColumn, 13 * 7 + 4);
  type->setLabelLayout(captionColumn, -1);
  name->setLabelLayout(captionColumn, -1);
  dialog->layout();
  const LabelWrapper::Arrangement& first = type->wrapper()->placed();
  const LabelWrapper::Arrangement& second = name->wrapper()->placed();
  EXPECT_EQ(first.control.tl.x, captionColumn);
  EXPECT_EQ(second.control.tl.x, captionColumn);
  EXPECT_EQ(first.control.br.x, type->getSize().width);
  EXPECT_EQ(first.caption.width(), captionColumn - Mui::metric(MetricLabelGap));
}

} // namespace
} // namespace mui::test
