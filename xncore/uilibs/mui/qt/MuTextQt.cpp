#include "mui/qt/MuTextQt.h"

#include "mui/qt/MarkupViewQt.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/MuiQt.h"
#include "plat/MarkupStripper.h"

namespace mui {

MuTextQt::MuTextQt(MuContainer* parent, const char* name, plat::Markup::LinkCallback* callback,
                   bool selectable)
    : MuText(parent, name, callback, selectable) {
  setCommon(std::make_unique<MuCommonQt>(
      this, new MarkupViewQt(this, MuCommonQt::parentWidgetFor(parent))));
  styleChanged();
}

MuText* MuTextQt::make(MuContainer* parent, const char* name, const char* markup,
                       plat::Markup::LinkCallback* callback, bool selectable) {
  auto* text = new MuTextQt(parent, name, callback, selectable);
  text->setText(markup);
  return text;
}

MarkupViewQt* MuTextQt::view() {
  return static_cast<MarkupViewQt*>(MuCommonQt::of(this)->widget());
}

void MuTextQt::textChanged() {
  view()->setMarkup(label());
  // Only a text with links is a stop of the Tab key.
  view()->setFocusPolicy(links().empty() ? Qt::NoFocus : Qt::StrongFocus);
  plat::Markup::Stripper plain(label());
  const QString shown = QString::fromUtf8(plain.data() ? plain.data() : "");
  MuCommonQt::of(this)->setText(shown);
  view()->setAccessibleName(shown);
}

void MuTextQt::styleChanged() {
  MuText::styleChanged();
  view()->setTextColour(MuiQt::colour(effectiveStyle().textColour.get(), "contentText"));
}

} // namespace mui
