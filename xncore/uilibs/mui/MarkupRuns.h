// mui::MarkupRuns: a marked-up text laid out at one width, as the list of its
// placed pieces. A text view keeps such a list and paints it, finds the link
// under the pointer in it, and lays the text out again when its width
// changes. The fonts are the binding's: a metrics object measures, and its
// own drawing operations are not used. Each paragraph's lines are aligned
// between its margins once the paragraph is complete.
#pragma once

#include "mui/Geometry.h"
#include "plat/MarkupLayout.h"

#include <string>
#include <vector>

namespace mui {

/// One placed piece of text on one line.
struct MarkupRun {
  /// UTF-8.
  std::string text;
  /// The link's target; null for plain text.
  plat::String href;
  plat::Markup::Style style;
  /// In the view's coordinates.
  Rect rect;
  /// Counted from 0.
  int line = 0;
};

struct MarkupRuns {
  std::vector<MarkupRun> runs;
  /// The union of the runs of each line, by line index.
  std::vector<Rect> lines;
  /// The size the layout reached, before alignment.
  Size extent;
  bool hasLinks = false;

  /// The first run whose rectangle holds `point`, or -1.
  int runAt(Point point) const;
};

/// Lays `markup` out at `width` (0 or less: no wrapping), measuring with
/// `metrics`. Invalid markup gives no runs.
MarkupRuns layOutMarkup(const char* markup, int width, plat::Markup::Layout::Callback& metrics);

} // namespace mui
