// mui::Mui: the root of the toolkit, one per process. It converts units
// (eighths of a millimetre) into pixels, keeps the house metrics, and knows
// every dialog, so that an observer can be added to all of them. A binding
// derives from it; the program's entry constructs that subclass right after
// the application loop and hands it to setInstance().
#pragma once

#include "mui/Geometry.h"
#include "plat/NonCopyable.h"

#include <cstdint>
#include <map>
#include <vector>

namespace mui {

class MuDialog;
class MuObserver;

/// The toolkit's house spacing, indexes into the metric table.
enum Metric : int {
  /// Default gap between layout children; the gap before a button bar's main buttons.
  MetricSpacing = 0,
  /// Gap between a label and its control.
  MetricLabelGap = 1,
  MetricDialogMargin = 2,
  /// Default frame margin and pager page inset.
  MetricFrameMargin = 3,
  /// Least height of buttons, edits and superboxes.
  MetricControlHeight = 4,
  /// Least width of normal buttons.
  MetricButtonWidth = 5,
  /// Side of an image cell of a list.
  MetricListImageSize = 6,
  /// The gap that a layout's addSection() makes.
  MetricSectionGap = 7,
  MetricCount = 8,
};

class Mui : plat::NonCopyable {
public:
  Mui();
  virtual ~Mui();

  /// The root; a fatal assertion before setInstance().
  static Mui& instance();
  static Mui* instanceOrNull() noexcept { return instance_; }
  static void setInstance(Mui* mui);

  /// Units to pixels at the present "ppmm", rounding half away from zero.
  static int toPixels(int units);
  /// As toPixels, after scaling by "TextSizeFactor": for sizes that grow with text.
  static int textToPixels(int units);
  /// Pixels to units at the present "ppmm", the nearest whole unit.
  static int toUnits(int pixels);
  /// The inverse of textToPixels, to the nearest whole unit.
  static int textToUnits(int pixels);
  static Size toPixels(Size units) { return {toPixels(units.width), toPixels(units.height)}; }
  static Size textToPixels(Size units) {
    return {textToPixels(units.width), textToPixels(units.height)};
  }

  /// The metric in pixels, as converted when the root was made or setMetrics() ran.
  static int metric(Metric which) noexcept;
  /// The metric in units.
  static int metricUnits(Metric which) noexcept;
  /// Replaces the unit values of all eight metrics and converts them again.
  static void setMetrics(const int units[MetricCount]);

  /// Adds `observer` to (or removes it from) every dialog, now and later.
  void addObserverToAllDialogs(MuObserver* observer, bool add);
  /// Called by each dialog when it is made and when it goes.
  void registerDialog(MuDialog* dialog, bool add);
  /// The dialogs in order of creation.
  std::vector<MuDialog*> dialogs() const;

private:
  static Mui* instance_;
  static std::uint32_t nextSerial_;

  std::map<std::uint32_t, MuDialog*> dialogs_;
  std::vector<MuObserver*> globalObservers_;
};

} // namespace mui
