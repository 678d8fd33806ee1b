// What the Qt binding's tests share: the Qt root with its hooks installed and
// a dialog to build forms in, plus a leaf whose widget shows a text.
#pragma once

#include "mui/MuDialog.h"
#include "mui/MuLayout.h"
#include "mui/MuiParameters.h"
#include "mui/qt/MuCommonQt.h"
#include "mui/qt/MuDialogQt.h"
#include "mui/qt/MuiQt.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QLabel>
#include <memory>

namespace mui::test {

/// A leaf shown by a QLabel, its text measured by the peer.
class LabelLeafQt : public MuElement {
public:
  static LabelLeafQt* create(MuContainer* parent, const char* name, const char* text) {
    auto* leaf = new LabelLeafQt(parent, name, text);
    parent->add(leaf);
    return leaf;
  }
  MuCommonQt* peer() { return MuCommonQt::of(this); }

private:
  LabelLeafQt(MuContainer* parent, const char* name, const char* text)
      : MuElement(parent, name, text) {
    auto* label = new QLabel(QString::fromUtf8(text), MuCommonQt::parentWidgetFor(parent));
    label->setWordWrap(true);
    label->setFocusPolicy(Qt::StrongFocus);
    setCommon(std::make_unique<MuCommonQt>(this, label));
  }
};

class QtForm : public testing::Test {
protected:
  void SetUp() override {
    root = std::make_unique<MuiQt>();
    installQtBinding(*root);
    const Size size{400, 300};
    dialog.reset(MuDialog::create("form", "Form", &size, 0, nullptr, nullptr));
  }
  void TearDown() override {
    dialog.reset();
    root.reset();
    ppmmParameter.unset(10, false);
  }

  QWidget* window() { return static_cast<MuDialogQt*>(dialog.get())->window(); }

  /// What the element's widget shows, as an image.
  static QImage grabOf(MuElement* element) {
    return MuCommonQt::of(element)->widget()->grab().toImage();
  }

  /// Lets Qt handle its events for `ms` milliseconds.
  static void processFor(int ms) {
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < ms)
      QApplication::processEvents(QEventLoop::AllEvents, 10);
  }

  std::unique_ptr<MuiQt> root;
  std::unique_ptr<MuDialog> dialog;
};

} // namespace mui::test
