// mui::MuChoiceHeadless: the drop-down list of the headless binding, its
// selection and edit text in memory, beside a caption
// (LabelWrapperHeadless). Tests pick items and type as the user would; a
// disabled, locked or hidden choice takes neither.
#pragma once

#include "mui/MuChoice.h"

namespace mui {

class LabelWrapperHeadless;

class MuChoiceHeadless : public MuChoice {
public:
  static MuChoice* make(MuContainer* parent, const char* name, const char* label, int options);

  void setValue(int id) override;
  int getValue() override;
  int itemCount() override;
  void setText(const char* text) override;
  plat::String getText() override;
  void addItem(int id, const char* text) override;
  void removeItem(int id) override;
  void removeAll() override;

  LabelWrapperHeadless* peer();
  /// The user picks the item of `id` from the opened list; false when the
  /// choice took no input or has no such item.
  bool pick(int id);
  /// The user types `text` into the edit part of an editable choice.
  bool type(const char* text);

protected:
  int textWidth(const char* text) override;
  int lineHeight() override;

private:
  MuChoiceHeadless(MuContainer* parent, const char* name, const char* label, int options);
  /// Like the native list, selects the item at `index` (-1: none) and tells
  /// when that changed the selection.
  void selectIndex(int index);

  int selected_ = -1;
  plat::String editText_;
};

} // namespace mui
