// mui::MuChoiceQt: the drop-down list of the Qt binding, a QComboBox beside
// its caption (LabelWrapperQt), editable when asked. Qt neither sorts the
// items nor adds typed text to them, and shows at most twenty items when
// open; a choice starts with no item selected, as the platform's does, and
// only the user's picks raise EventChanged.
#pragma once

#include "mui/MuChoice.h"

class QComboBox;

namespace mui {

class LabelWrapperQt;

class MuChoiceQt : public MuChoice {
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

  LabelWrapperQt* peer();
  QComboBox* comboBox() const;

protected:
  int textWidth(const char* text) override;
  int lineHeight() override;
  /// The style's arrow, frame and margins around the text.
  Size dropDownChrome() override;

private:
  MuChoiceQt(MuContainer* parent, const char* name, const char* label, int options);
};

} // namespace mui
