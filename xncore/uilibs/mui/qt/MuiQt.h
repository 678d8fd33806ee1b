// mui::MuiQt: the root of the Qt binding. It takes the display's density as
// the default of "ppmm", replaces the house metrics with the native ones,
// makes fonts from the message font at the scale of "ppmm", resolves colour
// names through the palette of the desktop, and installs the binding's
// factory hooks. It needs the process's QApplication.
#pragma once

#include "mui/MuStyle.h"
#include "mui/Mui.h"
#include "mui/qt/QuitRequestsQt.h"
#include "plat/SysColors.h"

#include <QColor>
#include <QFont>
#include <QTranslator>
#include <map>
#include <tuple>

namespace mui {

/// The desktop's colours from Qt's palette.
class SysColorsQt : public plat::SysColors {
public:
  bool lookup(const char* name, plat::Rgb* rgb) override;
  bool isDark() override;
};

class MuiQt : public Mui {
public:
  MuiQt();
  ~MuiQt() override;

  static MuiQt& instance();

  /// The font of `style`: the message font scaled by "ppmm", then by the
  /// style's relative size, weight and flags. Fonts are shared through a cache.
  QFont font(const MuStyle& style);
  /// The colour `name` resolves to, or `fallback`'s, or an invalid colour.
  static QColor colour(const char* name, const char* fallback = nullptr);
  /// The message font's height in pixels at the present "ppmm".
  int messageFontHeight() const;

private:
  /// Qt's own texts (a text box's context menu, a message box's buttons) in
  /// the first of the user's languages that Qt has them in.
  void translateQt();

  SysColorsQt colours_;
  QuitRequestsQt quitRequests_;
  QTranslator qtTexts_;
  QFont base_;
  /// The message font's pixel height at the default "ppmm".
  int baseHeight_;
  std::map<std::tuple<int, int, int, int>, QFont> fonts_;
};

/// Prepares Qt for the binding; called before the process's QApplication is
/// made. The toolkit scales itself by "ppmm", from the screen's logical
/// density, so Qt's own scaling is switched off unless the environment asks
/// for it: Qt then reports the desktop's density (Xft.dpi) as the screen's
/// logical one and draws in device pixels.
void prepareQtApplication();

/// Makes `root` the toolkit's root and installs every factory hook of the Qt binding.
void installQtBinding(MuiQt& root);

} // namespace mui
