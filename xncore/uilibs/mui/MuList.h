// mui::MuList: a list of rows in columns, each cell a text or the name of an
// image. The list holds the rows and the selection, and its own keyboard and
// mouse logic: the binding's control only shows them, reports the user's
// presses and keys, and says how wide a text is. A Callback may refuse rows
// (they can't be selected) and style single cells.
#pragma once

#include "mui/MuContainer.h"
#include "plat/Timer.h"

#include <initializer_list>
#include <vector>

namespace mui {

class MuList : public MuElement {
public:
  /// Bits of the list style.
  enum Style : int {
    /// Column headers are shown.
    ShowHeaders = 0x01,
    /// The list paints the selection itself, in one style whether or not it has the focus.
    PaintsSelection = 0x02,
    /// Text columns without a width of their own are as wide as their widest text.
    FitColumns = 0x04,
    /// A press on nothing, or a key that finds no row, keeps the selection.
    KeepSelection = 0x08,
  };
  enum ColumnKind : int { TextColumn = 0, ImageColumn = 1 };

  class Callback {
  public:
    virtual ~Callback() = default;
    /// A row that isn't selectable can't be selected by the user nor the program.
    virtual bool isSelectable(MuList* list, int row);
    /// Fills `style` (colours, font) for one cell; true when it did.
    virtual bool getCellStyle(MuList* list, int row, int columnId, MuStyle* style);
  };

  struct Column {
    int id;
    int kind;
    plat::String title;
    /// Pixels; 0 or less stretches a text column.
    int width;
  };

  static MuList* create(MuContainer* parent, const char* name, int listStyle, Callback* callback);

  /// An unselectable or negative row means none. Raises no event.
  virtual void setSelection(int row);
  /// -1 for none.
  virtual int getSelection();
  /// A kind other than ImageColumn is a text column.
  virtual void addColumn(int id, int kind, const char* title, int width);
  /// A row of empty cells at `index`; out of range appends.
  virtual void insertRow(int index);
  /// Out of range is ignored.
  virtual void removeRow(int row);
  /// Removes the rows; the columns stay.
  virtual void removeAll();
  virtual void setCell(int row, int columnId, const char* text);
  /// Scrolls until `row` shows.
  virtual void ensureVisible(int row);
  /// Paints the row again; a negative row means the whole list.
  virtual void invalidateRow(int row);

  /// insertRow(), then the cells in column order; gives the row's index.
  template <class... Cells>
  int addRow(int index, Cells... cells) {
    return addRowCells(index, {static_cast<const char*>(cells)...});
  }
  /// setCell() on each column of an existing row, in column order.
  template <class... Cells>
  void setRow(int row, Cells... cells) {
    setRowCells(row, {static_cast<const char*>(cells)...});
  }
  int addRowCells(int index, std::initializer_list<const char*> cells);
  void setRowCells(int row, std::initializer_list<const char*> cells);

  /// The position of column `id`, -1 when unknown.
  int columnIndex(int id) const noexcept;
  int columnCount() const noexcept { return static_cast<int>(columns_.size()); }
  const Column& column(int index) const { return columns_[static_cast<std::size_t>(index)]; }
  int rowCount() const noexcept { return static_cast<int>(rows_.size()); }
  /// The text of a cell by row and column position; "" out of range.
  const char* cell(int row, int columnIndex) const noexcept;
  int listStyle() const noexcept { return listStyle_; }
  Callback* callback() const noexcept { return callback_; }
  bool isSelectable(int row);
  /// The cell's own style from the callback; false when it has none.
  bool cellStyle(int row, int columnIndex, MuStyle* style);
  /// The widths of the columns at a client width of `clientWidth`.
  std::vector<int> columnWidths(int clientWidth);
  /// Gives the columns their widths again, as after a change of the client width.
  void updateColumnWidths();

  // The user's side, as the binding reports it.
  /// A key press in the list; false for the keys the dialog handles.
  bool keyPressed(int keysym);
  /// A left press on `row`, -1 for none.
  void rowPressed(int row);
  /// A double click on `row`, -1 for none.
  void rowDoubleClicked(int row);

  void setSize(Size size) override;
  int minWidth(int height) override;
  const char* typeName() override;
  plat::String describe() override;
  plat::String describeItems() override;
  bool perform(const char* action, const char* argument) override;

  ~MuList() override;

protected:
  MuList(MuContainer* parent, const char* name, int listStyle, Callback* callback);

  /// Binding: the width of `text` in the list's font.
  virtual int textWidth(const char* text) = 0;
  /// Binding: the width that the columns share, without frame and scroll bar.
  virtual int clientWidth() = 0;
  /// Binding: moves the shown selection and focus to `row`, none for -1.
  virtual void showSelection(int row) = 0;
  /// Binding: a row of empty cells came at `row`.
  virtual void rowInserted(int row) = 0;
  /// Binding: the row went; -1 when all rows went.
  virtual void rowRemoved(int row) = 0;
  /// Binding: a column was added (the last one) or the widths changed.
  virtual void applyColumnWidths(const std::vector<int>& widths) = 0;

private:
  class ClearTimer : public plat::Timer::Callback {
  public:
    explicit ClearTimer(MuList* list) noexcept : list_(list) {}
    bool timedOut(plat::Timer*) override;

  private:
    MuList* list_;
  };

  /// A change of selection that the user made, with the events it raises.
  void userSelect(int row);
  /// Selects the first selectable row from `start` on, by `step`; with none
  /// in range, what a key that finds no row does.
  void selectFrom(int start, int step);
  void searchFor(int character);
  /// The width of a cell's text, as far as it counts for its column.
  int cellWidth(const char* text);
  /// The widest text of each column, measured again when stale.
  const std::vector<int>& widestTexts();

  Callback* callback_;
  std::vector<Column> columns_;
  std::vector<std::vector<plat::String>> rows_;
  int listStyle_;
  int selection_ = -1;
  ClearTimer clearTimerCallback_{this};
  plat::Timer clearTimer_{&clearTimerCallback_};
  std::vector<int> widest_;
  bool widestValid_ = false;
};

using MuListFactory = MuList* (*)(MuContainer* parent, const char* name, int listStyle,
                                  MuList::Callback* callback);
extern MuListFactory muListFactory;

} // namespace mui
