#include "mui/headless/MuStaticHeadless.h"

#include "mui/Ellipsis.h"
#include "mui/headless/MuCommonHeadless.h"
#include "mui/headless/TextModelHeadless.h"

namespace mui {

MuStaticHeadless::MuStaticHeadless(MuContainer* parent, const char* name, const char* text,
                                   int type)
    : MuStatic(parent, name, text, type) {
  MuCommonHeadless::Traits traits;
  traits.focusable = type == Selectable;
  setCommon(std::make_unique<MuCommonHeadless>(this, traits));
}

MuStatic* MuStaticHeadless::make(MuContainer* parent, const char* name, const char* text,
                                 int type) {
  return new MuStaticHeadless(parent, name, text, type);
}

void MuStaticHeadless::textChanged() {
  MuCommonHeadless* peer = MuCommonHeadless::of(this);
  peer->record(std::string("setText ") + (label() ? label() : ""));
  peer->setText(label());
  peer->setSingleLine(isSingleLine());
}

std::string MuStaticHeadless::shownText() {
  MuCommonHeadless* peer = MuCommonHeadless::of(this);
  if (!isSingleLine())
    return peer->text();
  const TextModelHeadless model(effectiveStyle(), false);
  return elideAtWordEnd(peer->text(), getSize().width, [&model](std::string_view text) {
    return model.width(std::string(text).c_str());
  });
}

} // namespace mui
