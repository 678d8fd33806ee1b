// What the toolkit's tests share: the headless root with its hooks installed
// and a dialog to build forms in.
#pragma once

#include "mui/MuDialog.h"
#include "mui/MuLayout.h"
#include "mui/MuiParameters.h"
#include "mui/headless/MuCommonHeadless.h"
#include "mui/headless/MuiHeadless.h"
#include "mui/headless/TextLeafHeadless.h"

#include <gtest/gtest.h>

#include <memory>

namespace mui::test {

using TextLeaf = TextLeafHeadless;

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
