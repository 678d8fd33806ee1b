// mui::MuButtonQt: the button of the Qt binding, a QPushButton that paints
// itself (ButtonWidgetQt), so that links, image buttons, frames shown only
// while hot, alignment and wrapped labels look as the abstract half measures
// them. Its images are kept per state; a click, a Space or Return on it and
// its mnemonic all reach the abstract half as the user's click.
#pragma once

#include "mui/MuButton.h"

#include <QPixmap>

class QPushButton;

namespace mui {

class MuButtonQt : public MuButton {
public:
  static MuButton* make(MuContainer* parent, const char* name, const char* label, int type,
                        int options, int textAlign);

  void setLabel(const char* label) override;
  void setImage(const char* name, const Size* size, int state) override;
  void setImageBuffer(rfb::PixelBuffer* buffer, bool own, int state) override;

  QPushButton* widget() const;
  /// The image of `state`, or the normal one when the state has none.
  const QPixmap& image(int state) const;
  /// Whether the dialog's Return key, rather than the button, answers Return on it.
  bool isDialogDefault();

protected:
  Size imageSize() override;
  Size nativeFramePadding() override;

private:
  MuButtonQt(MuContainer* parent, const char* name, const char* label, int type, int options,
             int textAlign);
  void clickedInWidget();

  static constexpr int stateCount = 3;
  QPixmap images_[stateCount];
};

} // namespace mui
