#include "mui/qt/MuiQt.h"

#include "loc/Localize.h"
#include "mui/DisplayDensity.h"
#include "mui/MuiParameters.h"
#include "mui/qt/MuAutoHiderQt.h"
#include "mui/qt/MuButtonQt.h"
#include "mui/qt/MuCheckQt.h"
#include "mui/qt/MuChoiceQt.h"
#include "mui/qt/MuDialogQt.h"
#include "mui/qt/MuEditQt.h"
#include "mui/qt/MuFrameQt.h"
#include "mui/qt/MuImageQt.h"
#include "mui/qt/MuLayoutQt.h"
#include "mui/qt/MuLineQt.h"
#include "mui/qt/MuListQt.h"
#include "mui/qt/MuPagerQt.h"
#include "mui/qt/MuPopupMenuQt.h"
#include "mui/qt/MuScrollQt.h"
#include "mui/qt/MuSliderQt.h"
#include "mui/qt/MuSplitterQt.h"
#include "mui/qt/MuStaticQt.h"
#include "mui/qt/MuSuperboxQt.h"
#include "mui/qt/MuTextQt.h"
#include "plat/Assertion.h"
#include "xnutil/DisplayScale.h"

#include <QApplication>
#include <QFontInfo>
#include <QLibraryInfo>
#include <QPalette>
#include <QScreen>
#include <cstring>

namespace mui {

namespace {

// The house metrics of the native binding, in units.
constexpr int nativeMetrics[MetricCount] = {16, 8, 22, 22, 46, 150, 32, 32};

// Rounds half away from zero, as the unit conversions do.
int divideRounded(int numerator, int denominator) {
  return numerator >= 0 ? (numerator + denominator / 2) / denominator
                        : (numerator - denominator / 2) / denominator;
}

struct RoleName {
  const char* name;
  QPalette::ColorGroup group;
  QPalette::ColorRole role;
};

// The palette's system names that Qt's palette has a role for; the others
// come from the built-in palette.
constexpr RoleName roles[] = {
    {"contentBg", QPalette::Active, QPalette::Base},
    {"contentText", QPalette::Active, QPalette::Text},
    {"disabledText", QPalette::Disabled, QPalette::Text},
    {"buttonBg", QPalette::Active, QPalette::Button},
    {"buttonText", QPalette::Active, QPalette::ButtonText},
    {"selectedBg", QPalette::Active, QPalette::Highlight},
    {"selectedText", QPalette::Active, QPalette::HighlightedText},
    {"helpBg", QPalette::Active, QPalette::ToolTipBase},
    {"helpText", QPalette::Active, QPalette::ToolTipText},
};

} // namespace

bool SysColorsQt::lookup(const char* name, plat::Rgb* rgb) {
  for (const RoleName& entry : roles) {
    if (std::strcmp(entry.name, name) == 0) {
      const QColor c = QApplication::palette().color(entry.group, entry.role);
      *rgb = {static_cast<std::uint8_t>(c.red()), static_cast<std::uint8_t>(c.green()),
              static_cast<std::uint8_t>(c.blue())};
      return true;
    }
  }
  return false;
}

bool SysColorsQt::isDark() {
  const QColor base = QApplication::palette().color(QPalette::Active, QPalette::Base);
  return base.red() <= 128 && base.green() <= 128 && base.blue() <= 128;
}

MuiQt::MuiQt() : base_(QApplication::font()) {
  // Qt counts the layout's pixels in device-independent units: the density
  // they stand for is the logical one, and images are loaded finer by the
  // device pixel ratio.
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    ppmmParameter.setInt(ppmmForDpi(static_cast<int>(screen->logicalDotsPerInch() + 0.5)), 0);
    xnutil::setDeviceScalePercent(static_cast<int>(screen->devicePixelRatio() * 100 + 0.5));
  }
  setMetrics(nativeMetrics);
  baseHeight_ = QFontInfo(base_).pixelSize();
  plat::SysColors::setProvider(&colours_);
  translateQt();
}

void MuiQt::translateQt() {
  const QString directory = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  const QStringList locales =
      QString::fromUtf8(loc::Localize::instance().localeList().orEmpty()).split(QLatin1Char(':'));
  for (const QString& locale : locales) {
    if (locale.startsWith(QLatin1String("en")))
      return; // Qt's own texts are English
    if (qtTexts_.load(QStringLiteral("qtbase_") + locale, directory) ||
        qtTexts_.load(QStringLiteral("qtbase_") + locale.section(QLatin1Char('_'), 0, 0),
                      directory)) {
      QCoreApplication::installTranslator(&qtTexts_);
      return;
    }
  }
}

MuiQt::~MuiQt() {
  QCoreApplication::removeTranslator(&qtTexts_);
  if (plat::SysColors::provider() == &colours_)
    plat::SysColors::setProvider(nullptr);
}

MuiQt& MuiQt::instance() {
  return *XN_CHECKED_CAST(MuiQt, &Mui::instance());
}

// The message font goes through units and back, so that it follows an
// overriding "ppmm" the way every other size does.
int MuiQt::messageFontHeight() const {
  const int defaultPpmm = ppmmParameter.defaultValue();
  const int present = ppmmParameter;
  const int a = defaultPpmm > 0 ? defaultPpmm : present;
  const int units = divideRounded(8 * baseHeight_, a);
  return divideRounded(units * present, 8);
}

QFont MuiQt::font(const MuStyle& style) {
  const int height = messageFontHeight();
  const auto key = std::make_tuple(height, style.fontSize, style.fontWeight, style.fontFlags);
  auto found = fonts_.find(key);
  if (found != fonts_.end())
    return found->second;
  QFont font = base_;
  font.setPixelSize(std::max(1, (height * style.fontSize + 60) / 120));
  font.setWeight(static_cast<QFont::Weight>(std::clamp(style.fontWeight, 100, 900)));
  font.setItalic(style.isItalic());
  font.setUnderline(style.isUnderlined());
  fonts_.emplace(key, font);
  return font;
}

QColor MuiQt::colour(const char* name, const char* fallback) {
  plat::Rgb rgb;
  if (!plat::resolveColour(name, fallback, &rgb))
    return QColor();
  return QColor(rgb.red, rgb.green, rgb.blue);
}

void prepareQtApplication() {
  if (!qEnvironmentVariableIsSet("QT_ENABLE_HIGHDPI_SCALING"))
    qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
}

void installQtBinding(MuiQt& root) {
  Mui::setInstance(&root);
  muAutoHiderFactory = &MuAutoHiderQt::make;
  muDialogFactory = &MuDialogQt::make;
  muLayoutFactory = &MuLayoutQt::make;
  muButtonFactory = &MuButtonQt::make;
  muCheckFactory = &MuCheckQt::make;
  muSliderFactory = &MuSliderQt::make;
  muEditFactory = &MuEditQt::make;
  muChoiceFactory = &MuChoiceQt::make;
  muFrameFactory = &MuFrameQt::make;
  muStaticFactory = &MuStaticQt::make;
  muListFactory = &MuListQt::make;
  muImageFactory = &MuImageQt::make;
  muLineFactory = &MuLineQt::make;
  muTextFactory = &MuTextQt::make;
  muPagerFactory = &MuPagerQt::make;
  muScrollFactory = &MuScrollQt::make;
  muSplitterFactory = &MuSplitterQt::make;
  muPopupMenuFactory = &MuPopupMenuQt::make;
  muSuperboxFactory = &MuSuperboxQt::make;
}

} // namespace mui
