// mui::MuText: a marked-up text in a form, with links. Its text is the
// element's label, in the markup language of plat::Markup; each link's target
// is kept in the order the links stand in the text, so that a driver can
// follow one by its index. A click on a link gives its target to the link
// callback, if there is one.
#pragma once

#include "mui/MeasurePass.h"
#include "mui/MuElement.h"
#include "plat/MarkupLayout.h"

#include <vector>

namespace mui {

class MuText : public MuElement, public plat::Markup::Handler {
public:
  static MuText* create(MuContainer* parent, const char* name, const char* markup,
                        plat::Markup::LinkCallback* callback, bool selectable);
  /// A selectable text of `text` as it stands, without links.
  static MuText* createPlain(MuContainer* parent, const char* name, const char* text);
  /// A selectable text of the markup `markup` in a right-aligned block, without links.
  static MuText* createDiv(MuContainer* parent, const char* name, const char* markup);

  /// Shows `markup` and takes its links; invalid markup shows nothing and has none.
  virtual void setText(const char* markup);

  /// The user followed the link to `href`: it goes to the link callback.
  void followLink(const char* href);
  const std::vector<plat::String>& links() const noexcept { return links_; }
  plat::Markup::LinkCallback* linkCallback() const noexcept { return linkCallback_; }
  bool isSelectable() const noexcept { return selectable_; }

  /// The text on unbroken lines.
  int minWidth(int height) override;
  /// The text broken into lines of `width`; 0 below a width of 1.
  int minHeight(int width) override;
  /// "click" with a link's index follows that link, when there is a callback.
  bool perform(const char* action, const char* argument) override;
  const char* typeName() override;
  plat::String describe() override;

  void link(const plat::Markup::Style& style, const char* href, const char* text) override;

protected:
  MuText(MuContainer* parent, const char* name, plat::Markup::LinkCallback* callback,
         bool selectable);

  /// Binding: the label holds new markup; what was laid out is stale.
  virtual void textChanged() = 0;
  /// Binding: measures the pieces of the text in the binding's fonts.
  virtual plat::Markup::Layout::Callback& markupMetrics() = 0;

private:
  MeasureMemo memo_;
  std::vector<plat::String> links_;
  plat::Markup::LinkCallback* linkCallback_;
  bool selectable_;
};

/// The hook through which MuText::create makes the binding's text.
using MuTextFactory = MuText* (*)(MuContainer* parent, const char* name, const char* markup,
                                  plat::Markup::LinkCallback* callback, bool selectable);
extern MuTextFactory muTextFactory;

} // namespace mui
