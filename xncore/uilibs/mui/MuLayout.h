// mui::MuLayout: the one general layout of the toolkit, a row or a column in
// integer arithmetic. Each child has a sizing mode along the main axis
// (natural, fixed, or a weighted share of the spare room) and a placement
// across it. Forms get their whole arrangement by nesting rows in columns.
#pragma once

#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"

#include <memory>
#include <vector>

namespace mui {

class MuSpacer;

class MuLayout : public MuContainer {
public:
  enum Orientation : int { Vertical = 0, Horizontal = 1 };

  // Sizing modes, the low four bits of a child's mode word.
  /// The child's own minimum, measured at each layout.
  static constexpr int Natural = 0;
  /// `size` pixels.
  static constexpr int Fixed = 1;
  /// A share of the spare room, `size` being the weight.
  static constexpr int Weighted = 2;
  static constexpr int ModeMask = 0x0f;
  // Placements across the main axis, bits 4 to 7 of a child's mode word.
  static constexpr int Fill = 0x00;
  static constexpr int AtStart = 0x10;
  static constexpr int AtEnd = 0x20;
  static constexpr int Centred = 0x30;
  static constexpr int PlacementMask = 0xf0;
  /// Where moveChild() puts a child.
  enum Where : int { ToFront = 0, ToEnd = 1, Before = 2, After = 3 };

  static MuLayout* create(MuContainer* parent, const char* name, int orientation);

  /// Overwrites the child's mode word and size; the layout runs at the next pass.
  virtual void setChildLayout(MuElement* child, int mode, int size);
  /// After a change of order; a binding brings stacking and tab order into line.
  virtual void orderChanged();

  MuElement* getChild(int index) override;
  int childCount() override;
  void add(MuElement* element) override;
  void remove(MuElement* element) override;
  void removeAll() override;
  void layout() override;
  void setSize(Size size) override;
  int minWidth(int height) override;
  int minHeight(int width) override;
  void checkOverflow(OverflowReporter& reporter) override;
  const char* typeName() override;
  plat::String describe() override;

  void moveChild(MuElement* element, int where, MuElement* reference);
  /// A spacer that, with the normal gap, makes one section gap. With `stretch`,
  /// everything added afterwards becomes a weight-1 stretching child.
  MuSpacer* addSection(bool stretch);

  int orientation() const noexcept { return orientation_; }
  int spacing() const noexcept { return spacing_; }
  /// Takes effect at the next layout.
  void setSpacing(int spacing) noexcept;
  int defaultMode() const noexcept { return defaultMode_; }
  void setDefaultMode(int mode) noexcept { defaultMode_ = mode; }
  /// The mode word and size of a child's entry; false for a stranger.
  bool childLayout(MuElement* child, int* mode, int* size);

  ~MuLayout() override;

protected:
  MuLayout(MuContainer* parent, const char* name, int orientation);

private:
  struct Entry {
    std::unique_ptr<MuElement> element;
    int mode = 0;
    int size = 1;
  };

  std::vector<Entry>::iterator entryOf(MuElement* element);
  [[noreturn]] void notAChild(MuElement* element, const char* file, int line);
  bool vertical() const noexcept { return orientation_ == Vertical; }
  /// The child's minimum along the main axis at a cross extent, and the reverse.
  int minMain(MuElement* child, int crossExtent);
  int minCross(MuElement* child, int mainExtent);
  int measureAlong(int crossExtent);
  int measureAcross(int mainExtent);

  int orientation_;
  int spacing_;
  int defaultMode_ = 0;
  std::vector<Entry> children_;
  MeasureMemo memo_;
};

/// The hook through which MuLayout::create makes the binding's layout.
using MuLayoutFactory = MuLayout* (*)(MuContainer* parent, const char* name, int orientation);
extern MuLayoutFactory muLayoutFactory;

} // namespace mui
