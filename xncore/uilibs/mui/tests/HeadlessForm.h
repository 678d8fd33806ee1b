// What the toolkit's tests share: the headless root with its hooks installed,
// a dialog to build forms in, and a leaf element whose peer shows a text, so
// that trees can be measured with the headless text model.
#pragma once

#include "mui/MuDialog.h"
#include "mui/MuLayout.h"
#include "mui/MuiParameters.h"
#include "mui/headless/MuCommonHeadless.h"
#include "mui/headless/MuiHeadless.h"

#include <gtest/gtest.h>

#include <memory>

namespace mui::test {

/// A leaf with a text peer: wraps like a label, or stays on one line.
class TextLeaf : public MuElement {
public:
  static TextLeaf* create(MuContainer* parent, const char* name, const char* text,
                          bool singleLine = false) {
    auto* leaf = new TextLeaf(parent, name, text, singleLine);
    parent->add(leaf);
    return leaf;
  }
  MuCommonHeadless* peer() { return MuCommonHeadless::of(this); }

private:
  TextLeaf(MuContainer* parent, const char* name, const char* text, bool singleLine)
      : MuElement(parent, name, text) {
    MuCommonHeadless::Traits traits;
    traits.singleLine = singleLine;
    traits.focusable = true;
    setCommon(std::make_unique<MuCommonHeadless>(this, traits));
  }
};

/// A fresh headless root at "ppmm" 4 with one hidden dialog of 400 by 300 pixels.
class HeadlessForm : public testing::Test {
protected:
  void SetUp() override {
    ppmmParameter.setInt(4, 10);
    root = std::make_unique<MuiHeadless>();
    installHeadlessBinding(*root);
    const Size size{400, 300};
    dialog.reset(MuDialog::create("form", "Form", &size, 0, nullptr, nullptr));
  }
  void TearDown() override {
    dialog.reset();
    root.reset();
    ppmmParameter.unset(10, false);
  }

  std::unique_ptr<MuiHeadless> root;
  std::unique_ptr<MuDialog> dialog;
};

} // namespace mui::test
