#include "mui/qt/MarkupMetricsQt.h"

#include "mui/MuStyle.h"
#include "mui/qt/MuiQt.h"

#include <algorithm>

namespace mui {

namespace {

// Sizes come from the text itself; beyond this no font is of use.
constexpr int maxFontSize = 100 * 120;

} // namespace

MarkupMetricsQt::MarkupMetricsQt() : metrics_(fontOf(plat::Markup::Style())) {}

QFont MarkupMetricsQt::fontOf(const plat::Markup::Style& style) {
  MuStyle font;
  font.fontFlags = static_cast<std::int32_t>(style.flags_ & (MuStyle::Italic | MuStyle::Underline));
  font.fontSize = std::clamp(style.size_, 1, maxFontSize);
  font.fontWeight = style.weight_;
  return MuiQt::instance().font(font);
}

void MarkupMetricsQt::setStyle(const plat::Markup::Style& style, const char*, const char*) {
  metrics_ = QFontMetrics(fontOf(style));
}

std::int32_t MarkupMetricsQt::measure(const char* begin, const char* end) {
  return metrics_.horizontalAdvance(QString::fromUtf8(begin, static_cast<qsizetype>(end - begin)));
}

} // namespace mui
