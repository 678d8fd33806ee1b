// mui::MuSplitterQt: the splitter of the Qt binding, a plain widget under
// its panes that paints the separators between them, shows the resizing
// cursor over them and captures the mouse while one is dragged.
#pragma once

#include "mui/MuSplitter.h"

#include <Qt>

namespace mui {

class MuSplitterQt : public MuSplitter {
public:
  static MuSplitter* make(MuContainer* parent, const char* name, int orientation,
                          int separatorStyle, bool fixed);

  void layout() override;
  /// The pointer leaving for a pane takes the resizing cursor along, unless dragging.
  bool mouseEvent(const xnutil::MouseEvent& event) override;

protected:
  void beginDrag() override;
  void endDrag() override;
  void hover(Point position) override;

private:
  MuSplitterQt(MuContainer* parent, const char* name, int orientation, int separatorStyle,
               bool fixed);
  Qt::CursorShape resizeCursor() const;
};

} // namespace mui
