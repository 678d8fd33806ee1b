// mui::MuListHeadless: the list of the headless binding. The rows and the
// selection are the abstract list's; the peer records what would reach a
// native control (the shown selection, scrolling, column widths), measures
// cell texts with the headless text model, and gives tests the user's side:
// pressing and double-clicking rows and pressing keys in the list.
#pragma once

#include "mui/MuList.h"

namespace mui {

class MuCommonHeadless;

class MuListHeadless : public MuList {
public:
  static MuList* make(MuContainer* parent, const char* name, int listStyle, Callback* callback);

  void ensureVisible(int row) override;
  void invalidateRow(int row) override;

  /// The widths the columns have now.
  const std::vector<int>& widths() const noexcept { return widths_; }
  /// The row the control shows selected, -1 for none.
  int shownSelection() const noexcept { return shown_; }

  /// The user presses the left button on `row` (-1: below the rows); the list takes the focus.
  void pressRow(int row);
  void doubleClickRow(int row);
  /// The user presses a key in the list; keys the list leaves go to its dialog.
  void pressKey(int keysym);

protected:
  int textWidth(const char* text) override;
  int clientWidth() override;
  void showSelection(int row) override;
  void rowInserted(int row) override;
  void rowRemoved(int row) override;
  void applyColumnWidths(const std::vector<int>& widths) override;

private:
  MuListHeadless(MuContainer* parent, const char* name, int listStyle, Callback* callback);
  MuCommonHeadless* peer();

  std::vector<int> widths_;
  int shown_ = -1;
};

} // namespace mui
