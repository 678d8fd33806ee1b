// mui::MuButtonHeadless: the button of the headless binding. It keeps its
// images' sizes and its shield in memory, and offers tests the user's click,
// which a disabled, locked or hidden button ignores as a platform's would.
#pragma once

#include "mui/MuButton.h"

#include <memory>

namespace mui {

class MuCommonHeadless;

class MuButtonHeadless : public MuButton {
public:
  static MuButton* make(MuContainer* parent, const char* name, const char* label, int type,
                        int options, int textAlign);
  ~MuButtonHeadless() override;

  void setLabel(const char* label) override;
  void setImage(const char* name, const Size* size, int state) override;
  void setImageBuffer(rfb::PixelBuffer* buffer, bool own, int state) override;
  void setShield(bool shield) override;

  MuCommonHeadless* peer();
  /// The user presses and releases the button; false when it took no input.
  bool click();

protected:
  Size imageSize() override { return imageSizes_[ImageNormal]; }
  bool showsShield() override { return shield_; }

private:
  MuButtonHeadless(MuContainer* parent, const char* name, const char* label, int type, int options,
                   int textAlign);

  static constexpr int stateCount = 3;
  Size imageSizes_[stateCount];
  std::unique_ptr<rfb::PixelBuffer> ownedBuffers_[stateCount];
  bool shield_ = false;
};

} // namespace mui
