#include "mui/MuList.h"

#include "mui/Keys.h"
#include "mui/MeasurePass.h"
#include "mui/Mui.h"
#include "mui/Perform.h"
#include "plat/Assertion.h"
#include "plat/DString.h"
#include "plat/utf8.h"

#include <algorithm>
#include <cstring>
#include <cwctype>

namespace mui {

MuListFactory muListFactory = nullptr;

namespace {

// Widths of content-sized columns leave this much room beside the text.
constexpr int cellPadding = 12;
// Only so much of a cell's text counts towards its column's width.
constexpr int measuredCodePoints = 256;

int foldCase(int codePoint) {
  return static_cast<int>(std::towlower(static_cast<wint_t>(codePoint)));
}

// The code point that a key press types, 0 for keys that type nothing.
int typedCharacter(int keysym) {
  if (keysym >= 0x20 && keysym <= 0xFF && keysym != 0x7F)
    return keysym;
  if (keysym > 0x01000000 && keysym <= 0x0110FFFF)
    return keysym - 0x01000000;
  return 0;
}

int firstCodePoint(const char* text) {
  const int codePoint = plat::decodeUtf8(text);
  return codePoint > 0 ? codePoint : 0;
}

} // namespace

bool MuList::Callback::isSelectable(MuList*, int) {
  return true;
}

bool MuList::Callback::getCellStyle(MuList*, int, int, MuStyle*) {
  return false;
}

bool MuList::ClearTimer::timedOut(plat::Timer*) {
  list_->notify(list_, EventChanged);
  return false;
}

MuList::MuList(MuContainer* parent, const char* name, int listStyle, Callback* callback)
    : MuElement(parent, name), callback_(callback), listStyle_(listStyle) {}

MuList::~MuList() = default;

MuList* MuList::create(MuContainer* parent, const char* name, int listStyle, Callback* callback) {
  XN_ASSERT(muListFactory);
  MuList* list = muListFactory(parent, name, listStyle, callback);
  parent->add(list);
  return list;
}

bool MuList::isSelectable(int row) {
  return row >= 0 && row < rowCount() && (!callback_ || callback_->isSelectable(this, row));
}

bool MuList::cellStyle(int row, int columnIndex, MuStyle* style) {
  return callback_ && callback_->getCellStyle(this, row, columns_[columnIndex].id, style);
}

void MuList::setSelection(int row) {
  if (!isSelectable(row))
    row = -1;
  if (row == selection_)
    return;
  selection_ = row;
  showSelection(row);
  ensureVisible(row);
}

int MuList::getSelection() {
  return selection_;
}

// A row the user selected raises the event at once; a selection the user
// cleared raises it from the loop, so that moving from one row to another,
// which clears before it selects, raises one event.
void MuList::userSelect(int row) {
  if (row == selection_)
    return;
  const int previous = selection_;
  selection_ = row;
  showSelection(row);
  ensureVisible(row);
  if (row >= 0) {
    clearTimer_.stop();
    notify(this, EventChanged);
  } else if (previous >= 0) {
    clearTimer_.start(0);
  }
}

void MuList::addColumn(int id, int kind, const char* title, int width) {
  columns_.push_back(
      {id, kind == ImageColumn ? ImageColumn : TextColumn, plat::String(title), width});
  for (auto& row : rows_)
    row.resize(columns_.size());
  widestValid_ = false;
  MeasurePass::invalidate();
  updateColumnWidths();
}

void MuList::insertRow(int index) {
  if (index < 0 || index > rowCount())
    index = rowCount();
  rows_.insert(rows_.begin() + index, std::vector<plat::String>(columns_.size()));
  if (selection_ >= index)
    ++selection_;
  rowInserted(index);
}

void MuList::removeRow(int row) {
  if (row < 0 || row >= rowCount())
    return;
  rows_.erase(rows_.begin() + row);
  if (selection_ == row)
    selection_ = -1;
  else if (selection_ > row)
    --selection_;
  widestValid_ = false;
  MeasurePass::invalidate();
  rowRemoved(row);
  if (listStyle_ & FitColumns)
    updateColumnWidths();
}

void MuList::removeAll() {
  rows_.clear();
  selection_ = -1;
  widestValid_ = false;
  MeasurePass::invalidate();
  rowRemoved(-1);
  if (listStyle_ & FitColumns)
    updateColumnWidths();
}

void MuList::setCell(int row, int columnId, const char* text) {
  const int index = columnIndex(columnId);
  if (row < 0 || row >= rowCount() || index < 0)
    return;
  plat::String& cell = rows_[row][index];
  if (widestValid_ && columns_[index].kind == TextColumn) {
    int& widest = widest_[index];
    const int width = cellWidth(text ? text : "");
    if (width > widest) {
      widest = width;
      MeasurePass::invalidate();
      if (listStyle_ & FitColumns)
        updateColumnWidths();
    } else if (width < widest && cellWidth(cell.orEmpty()) == widest) {
      widestValid_ = false; // the widest text may have been this one
      MeasurePass::invalidate();
    }
  }
  cell = plat::String(text);
  invalidateRow(row);
}

void MuList::ensureVisible(int) {}

void MuList::invalidateRow(int) {}

int MuList::addRowCells(int index, std::initializer_list<const char*> cells) {
  if (index < 0 || index > rowCount())
    index = rowCount();
  insertRow(index);
  setRowCells(index, cells);
  return index;
}

void MuList::setRowCells(int row, std::initializer_list<const char*> cells) {
  std::size_t i = 0;
  for (const char* text : cells) {
    if (i >= columns_.size())
      break;
    setCell(row, columns_[i++].id, text);
  }
}

int MuList::columnIndex(int id) const noexcept {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    if (columns_[i].id == id)
      return static_cast<int>(i);
  }
  return -1;
}

const char* MuList::cell(int row, int columnIndex) const noexcept {
  if (row < 0 || row >= rowCount() || columnIndex < 0 || columnIndex >= columnCount())
    return "";
  return rows_[row][columnIndex].orEmpty();
}

int MuList::cellWidth(const char* text) {
  if (!*text)
    return 0;
  const char* end = text;
  for (int n = 0; *end; ++end) {
    // Counting the bytes that start a character.
    if ((static_cast<unsigned char>(*end) & 0xC0) != 0x80 && n++ == measuredCodePoints)
      break;
  }
  if (!*end)
    return textWidth(text);
  return textWidth(plat::strDup(text, static_cast<int>(end - text)).get());
}

const std::vector<int>& MuList::widestTexts() {
  if (widestValid_)
    return widest_;
  widest_.assign(columns_.size(), 0);
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    if (columns_[c].kind != TextColumn)
      continue;
    for (const auto& row : rows_) {
      widest_[c] = std::max(widest_[c], cellWidth(row[c].orEmpty()));
    }
  }
  widestValid_ = true;
  return widest_;
}

std::vector<int> MuList::columnWidths(int clientWidth) {
  const int imageSize = Mui::metric(MetricListImageSize);
  double free = clientWidth;
  int stretching = 0;
  for (const Column& column : columns_) {
    if (column.kind == ImageColumn)
      free -= imageSize;
    else if (column.width > 0)
      free -= column.width;
    else
      ++stretching;
  }
  const double share = stretching ? free / stretching : 0;
  const bool fit = (listStyle_ & FitColumns) != 0;
  std::vector<int> widths;
  int fitted = 0;
  int lastFitted = -1;
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    const Column& column = columns_[c];
    if (column.kind == ImageColumn)
      widths.push_back(imageSize);
    else if (column.width > 0)
      widths.push_back(column.width);
    else if (!fit)
      widths.push_back(static_cast<int>(share));
    else {
      widths.push_back(widestTexts()[c] + cellPadding);
      fitted += widths.back();
      lastFitted = static_cast<int>(c);
    }
  }
  if (lastFitted >= 0 && free > fitted)
    widths[static_cast<std::size_t>(lastFitted)] += static_cast<int>(free) - fitted;
  return widths;
}

void MuList::updateColumnWidths() {
  if (!columns_.empty())
    applyColumnWidths(columnWidths(clientWidth()));
}

void MuList::setSize(Size size) {
  MuElement::setSize(size);
  updateColumnWidths();
}

int MuList::minWidth(int) {
  int width = (columnCount() + 1) * cellPadding;
  const std::vector<int>& widest = widestTexts();
  for (std::size_t c = 0; c < columns_.size(); ++c)
    width += columns_[c].kind == ImageColumn ? Mui::metric(MetricListImageSize) : widest[c];
  return width;
}

void MuList::selectFrom(int start, int step) {
  for (int row = start; row >= 0 && row < rowCount(); row += step) {
    if (isSelectable(row)) {
      userSelect(row);
      return;
    }
  }
  if (!(listStyle_ & KeepSelection))
    userSelect(-1);
}

void MuList::searchFor(int character) {
  const int wanted = foldCase(character);
  const int count = rowCount();
  const int text = [this] {
    for (int c = 0; c < columnCount(); ++c) {
      if (columns_[c].kind == TextColumn)
        return c;
    }
    return -1;
  }();
  for (int step = 1; text >= 0 && step <= count; ++step) {
    const int row = (std::max(selection_, -1) + step) % count;
    if (foldCase(firstCodePoint(cell(row, text))) == wanted && isSelectable(row)) {
      userSelect(row);
      return;
    }
  }
  if (!(listStyle_ & KeepSelection))
    userSelect(-1);
}

bool MuList::keyPressed(int keysym) {
  switch (normaliseKey(keysym)) {
  case KeyUp:
  case KeyPageUp:
    selectFrom((selection_ >= 0 ? selection_ : rowCount()) - 1, -1);
    return true;
  case KeyDown:
  case KeyPageDown:
    selectFrom(selection_ + 1, 1);
    return true;
  case KeyHome:
    selectFrom(0, 1);
    return true;
  case KeyEnd:
    selectFrom(rowCount() - 1, -1);
    return true;
  // The dialog's keys: Return presses its default button whatever the
  // selection, as in any dialog; only a double-click activates a row.
  case KeyReturn:
  case KeyTab:
  case KeyEscape:
    return false;
  default:
    if (const int character = typedCharacter(keysym))
      searchFor(character);
    return true;
  }
}

void MuList::rowPressed(int row) {
  if (isSelectable(row))
    userSelect(row);
  else if ((row < 0 || row >= rowCount()) && !(listStyle_ & KeepSelection))
    userSelect(-1);
}

void MuList::rowDoubleClicked(int row) {
  rowPressed(row);
  if (isSelectable(row))
    notify(this, EventActivated);
}

const char* MuList::typeName() {
  return "list";
}

plat::String MuList::describe() {
  plat::DString text(describeCommon().get());
  text.appendFormat("element List\nvalue %d\n", getSelection());
  return text.takeString();
}

plat::String MuList::describeItems() {
  plat::DString text("");
  for (int row = 0; row < rowCount(); ++row) {
    text.appendFormat("%d:", row);
    for (int c = 0; c < columnCount(); ++c)
      text.appendFormat("%s\"%s\"", c ? "|" : "", cell(row, c));
    text.append("\n");
  }
  return text.takeString();
}

bool MuList::perform(const char* action, const char* argument) {
  if (std::strcmp(action, "select") != 0 || !argument || !canPerform(this, false))
    return false;
  setSelection(decimalArgument(argument));
  notify(this, EventChanged);
  return true;
}

} // namespace mui
