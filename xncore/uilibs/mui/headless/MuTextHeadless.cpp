#include "mui/headless/MuTextHeadless.h"

#include "mui/headless/MuCommonHeadless.h"

namespace mui {

MuTextHeadless::MuTextHeadless(MuContainer* parent, const char* name,
                               plat::Markup::LinkCallback* callback, bool selectable)
    : MuText(parent, name, callback, selectable) {
  setCommon(std::make_unique<MuCommonHeadless>(this));
}

MuText* MuTextHeadless::make(MuContainer* parent, const char* name, const char* markup,
                             plat::Markup::LinkCallback* callback, bool selectable) {
  auto* text = new MuTextHeadless(parent, name, callback, selectable);
  text->setText(markup);
  return text;
}

void MuTextHeadless::textChanged() {
  MuCommonHeadless* peer = MuCommonHeadless::of(this);
  peer->setText(label());
  peer->record(std::string("setText ") + (label() ? label() : ""));
}

MarkupRuns MuTextHeadless::runs() {
  return layOutMarkup(label(), getSize().width, metrics_);
}

void MuTextHeadless::clickAt(Point point) {
  const MarkupRuns laidOut = runs();
  const int hit = laidOut.runAt(point);
  if (hit >= 0 && !laidOut.runs[static_cast<std::size_t>(hit)].href.isNull())
    followLink(laidOut.runs[static_cast<std::size_t>(hit)].href.get());
}

} // namespace mui
