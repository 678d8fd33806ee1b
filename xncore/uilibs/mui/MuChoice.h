// mui::MuChoice: a drop-down list of items beside a caption, each item an id
// and a text in the order of adding; an editable choice also takes typed
// text. The abstract half keeps the items' ids and texts in step with the
// native list, measures the closed control from the widest item and the
// drop-down's chrome, and raises EventChanged when the user picks another
// item, never while items are being removed.
#pragma once

#include "mui/LabelWrapper.h"
#include "mui/MuElement.h"

#include <vector>

namespace mui {

class MuChoice : public MuElement, public LabelWrapper::MinSizeCallback {
public:
  enum Options : int {
    /// Text can be typed as well as picked.
    Editable = 0x01,
    /// Typed text is completed from the items.
    AutoComplete = 0x02,
  };
  /// The opened list shows at most this many items.
  static constexpr int maxVisibleItems = 20;

  static MuChoice* create(MuContainer* parent, const char* name, const char* label,
                          int options = 0);

  /// Selects the item of `id`; an unknown id clears the selection. No event.
  virtual void setValue(int id) = 0;
  /// The id of the selected item; -1 when none is.
  virtual int getValue() = 0;
  virtual int itemCount() = 0;
  /// The text of the edit part; a choice that can't be edited selects the
  /// item of that text, if there is one.
  virtual void setText(const char* text) = 0;
  virtual plat::String getText() = 0;
  /// Appends an item.
  virtual void addItem(int id, const char* text) = 0;
  /// An unknown id does nothing.
  virtual void removeItem(int id) = 0;
  virtual void removeAll() = 0;

  int minControlWidth() override;
  int minControlHeight() override;
  void setLabelLayout(int labelWidth, int controlWidth) override;
  int labelWidth() override;
  const char* typeName() override;
  plat::String describe() override;
  /// "id:text" lines, one an item.
  plat::String describeItems() override;
  /// "click" (idle and shown): EventClicked. "select" with an id and
  /// "settext" with a text (idle): the value or the text, then EventChanged.
  bool perform(const char* action, const char* argument) override;

  int options() const noexcept { return options_; }
  bool isEditable() const noexcept { return (options_ & Editable) != 0; }
  /// The index of the item of `id`, or -1.
  int indexOf(int id) const;
  /// The id and the text of the item at `index`, which must exist.
  int idAt(int index) const { return ids_[static_cast<std::size_t>(index)]; }
  const char* textAt(int index) const { return texts_[static_cast<std::size_t>(index)].get(); }
  /// How many items the abstract half keeps: as many as the native list holds.
  int keptItemCount() const noexcept { return static_cast<int>(ids_.size()); }

protected:
  MuChoice(MuContainer* parent, const char* name, const char* label, int options);

  /// Binding: the native list put the new item at `idx`, which must be the end.
  void itemAdded(std::size_t idx, int id, const char* text);
  /// Binding: the item at `index` is gone from the native list.
  void itemRemoved(int index);
  void itemsRemoved();
  /// Binding: removals are running, during which the native list's selection
  /// changes are none of the user's.
  class Removing {
  public:
    explicit Removing(MuChoice* choice) : choice_(choice) { choice_->removing_ = true; }
    ~Removing() { choice_->removing_ = false; }
    Removing(const Removing&) = delete;
    Removing& operator=(const Removing&) = delete;

  private:
    MuChoice* choice_;
  };
  /// Binding: the native list's selection changed, by the user unless items
  /// are being removed.
  void selectionChanged();

  /// Binding: the width of `text` in the element's font.
  virtual int textWidth(const char* text) = 0;
  /// Binding: the height of a line in the element's font.
  virtual int lineHeight() = 0;
  /// Binding: the width and height that the drop-down adds around the text.
  virtual Size dropDownChrome();

private:
  int options_;
  bool removing_ = false;
  std::vector<int> ids_;
  std::vector<plat::String> texts_;
};

/// The hook through which MuChoice::create makes the binding's choice.
using MuChoiceFactory = MuChoice* (*)(MuContainer* parent, const char* name, const char* label,
                                      int options);
extern MuChoiceFactory muChoiceFactory;

} // namespace mui
