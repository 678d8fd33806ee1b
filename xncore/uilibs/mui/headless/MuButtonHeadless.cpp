#include "mui/headless/MuButtonHeadless.h"

#include "mui/headless/MuCommonHeadless.h"
#include "plat/DString.h"
#include "rfb/PixelBuffer.h"
#include "ui/NamedImage.h"

namespace mui {

MuButtonHeadless::MuButtonHeadless(MuContainer* parent, const char* name, const char* label,
                                   int type, int options, int textAlign)
    : MuButton(parent, name, label, type, options, textAlign) {
  MuCommonHeadless::Traits traits;
  traits.mnemonics = true;
  traits.focusable = (options & NoFocus) == 0;
  setCommon(std::make_unique<MuCommonHeadless>(this, traits));
}

MuButtonHeadless::~MuButtonHeadless() = default;

MuButton* MuButtonHeadless::make(MuContainer* parent, const char* name, const char* label, int type,
                                 int options, int textAlign) {
  return new MuButtonHeadless(parent, name, label, type, options, textAlign);
}

MuCommonHeadless* MuButtonHeadless::peer() {
  return MuCommonHeadless::of(this);
}

void MuButtonHeadless::setLabel(const char* label) {
  MuButton::setLabel(label);
  peer()->setText(label);
  peer()->record(std::string("setLabel ") + (label ? label : "(null)"));
}

void MuButtonHeadless::setImage(const char* name, const Size* size, int state) {
  MuButton::setImage(name, size, state);
  imageSizes_[state] = ui::getNamedImage(name, size ? *size : Size())->size();
  peer()->record(plat::strFormat("setImage %s %d", name ? name : "(null)", state).get());
}

void MuButtonHeadless::setImageBuffer(rfb::PixelBuffer* buffer, bool own, int state) {
  imageSizes_[state] = buffer ? buffer->size() : Size();
  ownedBuffers_[state].reset(own ? buffer : nullptr);
  peer()->record(plat::strFormat("setImageBuffer %d", state).get());
}

void MuButtonHeadless::setShield(bool shield) {
  shield_ = shield;
  peer()->record(shield ? "setShield 1" : "setShield 0");
}

bool MuButtonHeadless::click() {
  if (!peer()->acceptsInput())
    return false;
  clickedByUser();
  return true;
}

} // namespace mui
