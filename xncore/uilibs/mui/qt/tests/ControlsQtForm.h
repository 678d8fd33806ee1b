// What the tests of the Qt binding's controls share: a column in the form's
// dialog to build controls in, a log of the events that reach it, and the
// dialog shown as the active window, so that keys and mnemonics reach it.
#pragma once

#include "QtForm.h"

#include "mui/tests/EventLog.h"

namespace mui::test {

class ControlsQtForm : public QtForm {
protected:
  void SetUp() override {
    QtForm::SetUp();
    column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
  }
  void TearDown() override {
    dialog->setVisible(false);
    QtForm::TearDown();
  }
  /// Shows the dialog as the active window; the log hears from then on.
  void show() {
    dialog->setVisible(true);
    QApplication::setActiveWindow(window());
    column->addObserver(&log);
  }

  MuLayout* column = nullptr;
  EventLog log;
};

} // namespace mui::test
