#include "mui/headless/MuListHeadless.h"

#include "mui/MuDialog.h"
#include "mui/headless/MuCommonHeadless.h"
#include "mui/headless/TextModelHeadless.h"
#include "plat/DString.h"

namespace mui {

MuListHeadless::MuListHeadless(MuContainer* parent, const char* name, int listStyle,
                               Callback* callback)
    : MuList(parent, name, listStyle, callback) {
  MuCommonHeadless::Traits traits;
  traits.focusable = true;
  setCommon(std::make_unique<MuCommonHeadless>(this, traits));
}

MuList* MuListHeadless::make(MuContainer* parent, const char* name, int listStyle,
                             Callback* callback) {
  return new MuListHeadless(parent, name, listStyle, callback);
}

MuCommonHeadless* MuListHeadless::peer() {
  return MuCommonHeadless::of(this);
}

int MuListHeadless::textWidth(const char* text) {
  return TextModelHeadless(effectiveStyle(), false).width(text);
}

int MuListHeadless::clientWidth() {
  return getSize().width;
}

void MuListHeadless::showSelection(int row) {
  peer()->record(plat::strFormat("showSelection %d", row).get());
  shown_ = row;
}

void MuListHeadless::rowInserted(int row) {
  if (shown_ >= row)
    ++shown_;
}

void MuListHeadless::rowRemoved(int row) {
  if (row < 0 || shown_ == row)
    shown_ = -1;
  else if (shown_ > row)
    --shown_;
}

void MuListHeadless::applyColumnWidths(const std::vector<int>& widths) {
  widths_ = widths;
}

void MuListHeadless::ensureVisible(int row) {
  peer()->record(plat::strFormat("ensureVisible %d", row).get());
}

void MuListHeadless::invalidateRow(int row) {
  peer()->record(plat::strFormat("invalidateRow %d", row).get());
}

// A disabled control gets no input.
void MuListHeadless::pressRow(int row) {
  if (!peer()->isEnabled())
    return;
  setFocus();
  rowPressed(row);
}

void MuListHeadless::doubleClickRow(int row) {
  if (!peer()->isEnabled())
    return;
  setFocus();
  rowDoubleClicked(row);
}

void MuListHeadless::pressKey(int keysym) {
  if (peer()->isEnabled() && !keyPressed(keysym)) {
    if (MuDialog* dialog = rootDialog())
      dialog->activateByKey(keysym);
  }
}

} // namespace mui
