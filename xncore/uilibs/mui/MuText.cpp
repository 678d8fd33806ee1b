#include "mui/MuText.h"

#include "mui/MarkupRuns.h"
#include "mui/MeasurePass.h"
#include "mui/MuContainer.h"
#include "mui/Perform.h"
#include "plat/Assertion.h"
#include "plat/DString.h"
#include "plat/MarkupBuilders.h"

#include <cstring>

namespace mui {

MuTextFactory muTextFactory = nullptr;

MuText::MuText(MuContainer* parent, const char* name, plat::Markup::LinkCallback* callback,
               bool selectable)
    : MuElement(parent, name), linkCallback_(callback), selectable_(selectable) {}

MuText* MuText::create(MuContainer* parent, const char* name, const char* markup,
                       plat::Markup::LinkCallback* callback, bool selectable) {
  XN_ASSERT(muTextFactory);
  MuText* text = muTextFactory(parent, name, markup, callback, selectable);
  parent->add(text);
  return text;
}

MuText* MuText::createPlain(MuContainer* parent, const char* name, const char* text) {
  plat::DString markup("");
  plat::markupTextSpan(markup, text, nullptr, plat::Markup::Style::normalSize);
  return create(parent, name, markup.data(), nullptr, true);
}

MuText* MuText::createDiv(MuContainer* parent, const char* name, const char* markup) {
  plat::DString block("");
  plat::markupDiv(block, plat::Markup::alignRight, nullptr);
  block.append(markup);
  block.append("</div>");
  return create(parent, name, block.data(), nullptr, true);
}

void MuText::setText(const char* markup) {
  MeasurePass::invalidate();
  setLabelText(markup);
  links_.clear();
  if (markup)
    plat::Markup::parser().parse(markup, this);
  textChanged();
}

void MuText::link(const plat::Markup::Style&, const char* href, const char*) {
  links_.emplace_back(href);
}

void MuText::followLink(const char* href) {
  if (linkCallback_)
    linkCallback_->linkClicked(href);
}

int MuText::minWidth(int) {
  MeasurePass pass;
  int width = 0;
  if (!memo_.lookup(MeasureMemo::Width, 0, &width)) {
    width = layOutMarkup(label(), 0, markupMetrics()).extent.width;
    memo_.store(MeasureMemo::Width, 0, width);
  }
  return width;
}

int MuText::minHeight(int width) {
  if (width < 1)
    return 0;
  MeasurePass pass;
  int height = 0;
  if (!memo_.lookup(MeasureMemo::Height, width, &height)) {
    height = layOutMarkup(label(), width, markupMetrics()).extent.height;
    memo_.store(MeasureMemo::Height, width, height);
  }
  return height;
}

bool MuText::perform(const char* action, const char* argument) {
  if (!action || std::strcmp(action, "click") != 0 || !argument || !linkCallback_)
    return false;
  const int index = decimalArgument(argument);
  if (index < 0 || index >= static_cast<int>(links_.size()))
    return false;
  followLink(links_[static_cast<std::size_t>(index)].get());
  return true;
}

const char* MuText::typeName() {
  return "text";
}

plat::String MuText::describe() {
  plat::DString text(describeCommon().get());
  text.append("element Text\n");
  for (std::size_t i = 0; i < links_.size(); ++i)
    text.appendFormat("%d %s\n", static_cast<int>(i), links_[i].orEmpty());
  return text.takeString();
}

} // namespace mui
