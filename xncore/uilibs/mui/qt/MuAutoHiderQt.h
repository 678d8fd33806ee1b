// mui::MuAutoHiderQt: the auto-hiding panel of the Qt binding. On a parent
// window the dialog's window becomes a frameless child widget of the parent's
// widget, placed in its client area. The pointer is watched for the whole
// application, without taking any event from the widgets it goes to: a move
// over the panel or its children brings the panel into view, a move over the
// parent's client area or its children sends it away.
#pragma once

#include "mui/MuAutoHiderDlgBase.h"

#include <QObject>
#include <QWidget>
#include <memory>

namespace mui {

class MuAutoHiderQt : public MuAutoHiderDlgBase {
public:
  static MuAutoHider* make(const char* name, const Size* size, int edge, int revealSize,
                           ui::AutoHider::Callback* callback);
  ~MuAutoHiderQt() override;

  /// The panel's widget: the dialog's window.
  QWidget* panel();

private:
  MuAutoHiderQt(const char* name, const Size* size, int edge, int revealSize,
                ui::AutoHider::Callback* callback);

  std::unique_ptr<QObject> pointerWatcher_;
};

} // namespace mui
