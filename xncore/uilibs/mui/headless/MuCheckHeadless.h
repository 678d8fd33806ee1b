// mui::MuCheckHeadless: the check box and radio button of the headless
// binding. Its state (unset, set, indeterminate) is kept in memory; tests
// click it as the user would, which a disabled, locked or hidden check
// ignores.
#pragma once

#include "mui/MuCheck.h"

namespace mui {

class MuCommonHeadless;

class MuCheckHeadless : public MuCheck {
public:
  static MuCheck* make(MuContainer* parent, const char* name, const char* label, int type,
                       MuCheck* groupPeer, const char* imageBase);

  void setValue(bool value) override;
  bool getValue() override { return state_ == Set; }
  void setIndeterminate() override;
  bool isIndeterminate() override { return state_ == Indeterminate; }
  void setLabel(const char* label) override;

  MuCommonHeadless* peer();
  /// The user clicks the check; false when it took no input.
  bool click();

protected:
  int zeroWidth() override;
  Size imageSize() override;

private:
  MuCheckHeadless(MuContainer* parent, const char* name, const char* label, int type,
                  MuCheck* groupPeer, const char* imageBase);

  State state_ = Unset;
};

} // namespace mui
