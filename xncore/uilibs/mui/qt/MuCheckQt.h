// mui::MuCheckQt: the check box or radio button of the Qt binding, a
// QCheckBox or QRadioButton that paints itself (CheckWidgetQt), so that its
// label wraps as the abstract half measures it and state images can take the
// place of the box. Qt neither advances the state nor groups radios: a click,
// Space or the mnemonic reaches the abstract half, which decides.
#pragma once

#include "mui/MuCheck.h"

#include <QPixmap>

class QAbstractButton;

namespace mui {

class MuCheckQt : public MuCheck {
public:
  static MuCheck* make(MuContainer* parent, const char* name, const char* label, int type,
                       MuCheck* groupPeer, const char* imageBase);

  void setValue(bool value) override;
  bool getValue() override;
  void setIndeterminate() override;
  bool isIndeterminate() override;
  void setLabel(const char* label) override;

  QAbstractButton* widget() const;
  /// The image that stands for the present state; null when the check has none.
  QPixmap stateImage();
  /// The widget's click, from the pointer, the keyboard or the mnemonic.
  void clickedInWidget();

protected:
  int zeroWidth() override;
  Size imageSize() override;
  Size nativeBoxSize() override;
  int nativeMarkWidth() override;

private:
  MuCheckQt(MuContainer* parent, const char* name, const char* label, int type, MuCheck* groupPeer,
            const char* imageBase);

  /// A radio button has no third state of its own; it shows as unset.
  bool radioIndeterminate_ = false;
  /// Where the style puts the label (contents) or the box, in a large button.
  QRect styleRect(bool contents);

  /// The unset, set and indeterminate images, when the check has them.
  QPixmap images_[3];
};

} // namespace mui
