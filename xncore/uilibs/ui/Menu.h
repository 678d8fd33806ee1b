// ui::Menu: the items of a menu, as the program builds them: commands with
// an id and a text ('&' marks the mnemonic), separators, and their enabled
// and checked states. A binding shows the menu and reports the item the user
// chose; choose() hands it to the menu's ActionCallback.
#pragma once

#include "plat/String.h"

#include <algorithm>
#include <vector>

namespace ui {

class Menu {
public:
  class ActionCallback {
  public:
    /// The user chose the item `id` of `menu`.
    virtual void menuAction(Menu* menu, int id) = 0;
    virtual ~ActionCallback() = default;
  };

  struct Item {
    /// 0 for a separator.
    int id = 0;
    plat::String text;
    bool enabled = true;
    bool checked = false;
    bool isSeparator() const noexcept { return id == 0; }
  };

  explicit Menu(ActionCallback* callback = nullptr) noexcept : callback_(callback) {}

  void setCallback(ActionCallback* callback) noexcept { callback_ = callback; }
  /// Appends a command; `id` must not be 0.
  void addItem(int id, const char* text) { items_.push_back({id, plat::String(text)}); }
  void addSeparator() { items_.push_back({}); }
  void removeAll() noexcept { items_.clear(); }
  void setEnabled(int id, bool enabled) {
    if (Item* item = find(id))
      item->enabled = enabled;
  }
  void setChecked(int id, bool checked) {
    if (Item* item = find(id))
      item->checked = checked;
  }
  const std::vector<Item>& items() const noexcept { return items_; }

  /// The user chose `id`: the callback hears of it. False for an item that
  /// doesn't exist or is disabled.
  bool choose(int id) {
    const Item* item = find(id);
    if (!item || !item->enabled)
      return false;
    if (callback_)
      callback_->menuAction(this, id);
    return true;
  }

private:
  Item* find(int id) noexcept {
    auto i = std::find_if(items_.begin(), items_.end(),
                          [id](const Item& item) { return id != 0 && item.id == id; });
    return i == items_.end() ? nullptr : &*i;
  }

  ActionCallback* callback_;
  std::vector<Item> items_;
};

} // namespace ui
