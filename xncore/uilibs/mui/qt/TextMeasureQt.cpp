#include "mui/qt/TextMeasureQt.h"

#include <QFontMetrics>
#include <QString>
#include <climits>

namespace mui {

int textWidthQt(const QFont& font, const QString& text, bool mnemonics) {
  const int flags = mnemonics ? Qt::TextShowMnemonic : 0;
  return QFontMetrics(font)
      .boundingRect(QRect(0, 0, INT_MAX / 2, INT_MAX / 2), flags, text)
      .width();
}

int textHeightQt(const QFont& font, const QString& text, int width, bool mnemonics,
                 bool singleLine) {
  if (width < 1)
    return 0;
  const QFontMetrics metrics(font);
  if (singleLine || width == INT_MAX)
    return metrics.height() * static_cast<int>(text.count(QLatin1Char('\n')) + 1);
  const int flags = Qt::TextWordWrap | (mnemonics ? Qt::TextShowMnemonic : 0);
  // An empty text is still one line high.
  const QString shown = text.isEmpty() ? QStringLiteral(" ") : text;
  return metrics.boundingRect(QRect(0, 0, width, INT_MAX / 2), flags, shown).height();
}

} // namespace mui
