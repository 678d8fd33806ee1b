#include "mui/headless/MuiHeadless.h"

#include "mui/headless/MuAutoHiderHeadless.h"
#include "mui/headless/MuButtonHeadless.h"
#include "mui/headless/MuCheckHeadless.h"
#include "mui/headless/MuChoiceHeadless.h"
#include "mui/headless/MuDialogHeadless.h"
#include "mui/headless/MuEditHeadless.h"
#include "mui/headless/MuFrameHeadless.h"
#include "mui/headless/MuImageHeadless.h"
#include "mui/headless/MuLayoutHeadless.h"
#include "mui/headless/MuLineHeadless.h"
#include "mui/headless/MuListHeadless.h"
#include "mui/headless/MuPagerHeadless.h"
#include "mui/headless/MuPopupMenuHeadless.h"
#include "mui/headless/MuScrollHeadless.h"
#include "mui/headless/MuSliderHeadless.h"
#include "mui/headless/MuSplitterHeadless.h"
#include "mui/headless/MuStaticHeadless.h"
#include "mui/headless/MuSuperboxHeadless.h"
#include "mui/headless/MuTextHeadless.h"
#include "plat/Assertion.h"

namespace mui {

MuiHeadless& MuiHeadless::instance() {
  return *XN_CHECKED_CAST(MuiHeadless, &Mui::instance());
}

void installHeadlessBinding(MuiHeadless& root) {
  Mui::setInstance(&root);
  muAutoHiderFactory = &MuAutoHiderHeadless::make;
  muDialogFactory = &MuDialogHeadless::make;
  muLayoutFactory = &MuLayoutHeadless::make;
  muButtonFactory = &MuButtonHeadless::make;
  muCheckFactory = &MuCheckHeadless::make;
  muSliderFactory = &MuSliderHeadless::make;
  muEditFactory = &MuEditHeadless::make;
  muChoiceFactory = &MuChoiceHeadless::make;
  muFrameFactory = &MuFrameHeadless::make;
  muStaticFactory = &MuStaticHeadless::make;
  muListFactory = &MuListHeadless::make;
  muImageFactory = &MuImageHeadless::make;
  muLineFactory = &MuLineHeadless::make;
  muTextFactory = &MuTextHeadless::make;
  muPagerFactory = &MuPagerHeadless::make;
  muScrollFactory = &MuScrollHeadless::make;
  muSplitterFactory = &MuSplitterHeadless::make;
  muPopupMenuFactory = &MuPopupMenuHeadless::make;
  muSuperboxFactory = &MuSuperboxHeadless::make;
}

} // namespace mui
