// mui::MuSplitter: panes side by side or stacked, with a separator between
// each two that the user drags to give one pane more room. Each pane has a
// least size and a size; the last shown pane takes what remains, and while
// the splitter shows, the panes before it give up room down to their least
// sizes so that the ones after keep theirs. A fixed splitter's sizes are set
// by the program alone.
#pragma once

#include "mui/MuContainer.h"

#include <memory>
#include <vector>

namespace mui {

class MuSplitter : public MuContainer {
public:
  enum Orientation : int { SideBySide = 0, Stacked = 1 };
  /// Separator styles: 5 pixels, 3 pixels, or 3 with a line down the middle.
  enum SeparatorStyle : int { Wide = 0, Narrow = 1, Lined = 2 };

  static MuSplitter* create(MuContainer* parent, const char* name, int orientation,
                            int separatorStyle, bool fixed);

  /// 3 pixels for a narrow or lined separator, else 5.
  virtual int separatorSize();
  /// Shows or hides pane `index`; its sizes stay for when it shows again.
  virtual void setPaneVisible(bool visible, int index);

  MuElement* getChild(int index) override;
  int childCount() override;
  /// A new pane at its least size along the axis.
  void add(MuElement* element) override;
  void remove(MuElement* element) override;
  void removeAll() override;
  void layout() override;
  int minWidth(int height) override;
  int minHeight(int width) override;
  /// Measures every pane again, then lays out, then the parent.
  void contentChanged() override;
  const char* typeName() override;
  plat::String describe() override;
  /// Hovering and dragging the separators.
  bool mouseEvent(const xnutil::MouseEvent& event) override;

  /// No less than the pane's least size.
  void setPaneSize(int size, int index);
  /// The pane's least size and size, the size no less than the least.
  void setPaneSizes(int index, int min, int size);
  /// The sizes along the axis, 0 for hidden panes.
  std::vector<int> getPaneSizes();
  /// Where each separator starts along the axis, one fewer than panes.
  std::vector<int> getSeparatorPositions();
  /// Where the separator after pane `index` starts: the end of the last shown pane up to it.
  int separatorPosition(int index);
  /// The separator's thickness after pane `index`; 0 when the pane is hidden.
  int separatorThickness(int index);
  /// The separator at `position` along the axis, or -1.
  int indexAt(int position);

  int orientation() const noexcept { return orientation_; }
  int separatorStyle() const noexcept { return separatorStyle_; }
  bool isFixed() const noexcept { return fixed_; }
  bool isDragging() const noexcept { return dragging_; }
  /// The separator under the pointer, -1 for none.
  int hoverIndex() const noexcept { return hoverIndex_; }

  ~MuSplitter() override;

protected:
  MuSplitter(MuContainer* parent, const char* name, int orientation, int separatorStyle,
             bool fixed);

  /// Binding: captures the mouse and shows the resizing cursor.
  virtual void beginDrag();
  /// Binding: gives both back.
  virtual void endDrag();
  /// Binding: the cursor for what lies under `position`, hoverIndex() telling.
  virtual void hover(Point position);

private:
  struct Pane {
    int minSize;
    int size;
    std::unique_ptr<MuElement> element;
  };

  int along(Point point) const noexcept { return orientation_ == SideBySide ? point.x : point.y; }
  int along(Size size) const noexcept {
    return orientation_ == SideBySide ? size.width : size.height;
  }
  /// The pane's minimum along the axis at the splitter's present extent across it.
  int minimumAlong(MuElement* element);
  void checkSeparatorIndex(int index, bool firstSpelling);
  /// Along the axis: every pane (least sizes when fixed) and the separators between.
  int measureAlong();
  /// Across it: the largest pane, asked with no extent along the axis.
  int measureAcross();

  std::vector<Pane> panes_;
  int orientation_;
  int separatorStyle_;
  bool fixed_;
  bool dragging_ = false;
  int hoverIndex_ = -1;
  int dragStart_ = 0;
  int dragStartSize_ = 0;
};

using MuSplitterFactory = MuSplitter* (*)(MuContainer* parent, const char* name, int orientation,
                                          int separatorStyle, bool fixed);
extern MuSplitterFactory muSplitterFactory;

} // namespace mui
