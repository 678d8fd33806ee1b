// A long "Permissions" text the whole way through the dialog on the Qt
// binding, as an administrator who pastes the list of a whole organisation
// would send it: in the edit box, through Refresh Users & Groups into the
// parameter and the list (each entry's name looked up), through Refresh
// Parameter rendered back into the parameter and the edit box, and the
// window laid out and painted. No step may be quadratic: the time per
// kilobyte may creep up with the size, never in proportion to it.
#include "PermissionsTexts.h"
#include "oxnpermissionscreator/EntryFrame.h"
#include "oxnpermissionscreator/FeaturePermissions.h"
#include "oxnpermissionscreator/PermissionsDialog.h"
#include "oxnpermissionscreator/TextKeys.h"

#include "mui/MuEdit.h"
#include "mui/qt/MuiQt.h"
#include "os/AppInfo.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdlib>
#include <string>

namespace {

mui::MuElement* element(app::PermissionsDialog& dialog, const char* path) {
  return dialog.getDialog()->find((std::string("s1.f1.main.") + path).c_str());
}

void editBoxToListAndBack(benchmark::State& state) {
  const std::string text = permissionsText(static_cast<std::size_t>(state.range(0)));
  mui::MuiQt root;
  mui::installQtBinding(root);
  app::PermissionsDialog dialog;
  dialog.open();
  auto* box = static_cast<mui::MuEdit*>(element(dialog, "permissionstring"));
  mui::MuElement* refreshUi = element(dialog, "tl.refreshui");
  mui::MuElement* refreshText = element(dialog, "tl.refreshtext");
  for (auto _ : state) {
    box->setText(text.c_str());
    refreshUi->perform("click", nullptr);
    refreshText->perform("click", nullptr);
    QApplication::processEvents();
    const plat::String shown = box->getText();
    if (std::string(shown.get()).size() != text.size())
      state.SkipWithError("the text came back with another length");
  }
  reportPerKilobyte(state);
}

BENCHMARK(editBoxToListAndBack)->Apply(longTextSizes);

} // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  mui::prepareQtApplication();
  QApplication application(argc, argv);
  os::setAppInfo(app::applicationName, "Ostrand", "oxn", textkey::oxnpermissionscreator_app_name_r,
                 nullptr);
  app::defineFeaturePermissions();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
