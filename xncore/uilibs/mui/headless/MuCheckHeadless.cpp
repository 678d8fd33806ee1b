#include "mui/headless/MuCheckHeadless.h"

#include "mui/headless/MuCommonHeadless.h"
#include "mui/headless/TextModelHeadless.h"
#include "ui/NamedImage.h"

namespace mui {

MuCheckHeadless::MuCheckHeadless(MuContainer* parent, const char* name, const char* label, int type,
                                 MuCheck* groupPeer, const char* imageBase)
    : MuCheck(parent, name, label, type, groupPeer, imageBase) {
  MuCommonHeadless::Traits traits;
  traits.mnemonics = true;
  traits.focusable = true;
  setCommon(std::make_unique<MuCommonHeadless>(this, traits));
}

MuCheck* MuCheckHeadless::make(MuContainer* parent, const char* name, const char* label, int type,
                               MuCheck* groupPeer, const char* imageBase) {
  return new MuCheckHeadless(parent, name, label, type, groupPeer, imageBase);
}

MuCommonHeadless* MuCheckHeadless::peer() {
  return MuCommonHeadless::of(this);
}

void MuCheckHeadless::setValue(bool value) {
  peer()->record(value ? "setValue 1" : "setValue 0");
  state_ = value ? Set : Unset;
}

void MuCheckHeadless::setIndeterminate() {
  peer()->record("setIndeterminate");
  state_ = Indeterminate;
}

void MuCheckHeadless::setLabel(const char* label) {
  MuCheck::setLabel(label);
  peer()->setText(label);
}

bool MuCheckHeadless::click() {
  if (!peer()->acceptsInput())
    return false;
  clickedByUser();
  return true;
}

int MuCheckHeadless::zeroWidth() {
  return TextModelHeadless(effectiveStyle(), false).width("0");
}

Size MuCheckHeadless::imageSize() {
  return ui::getNamedImage(imageName(Unset).get(), Size())->size();
}

} // namespace mui
