#include "mui/Mui.h"

#include "mui/MuDialog.h"
#include "mui/MuiParameters.h"
#include "plat/Assertion.h"

#include <algorithm>
#include <iterator>

namespace mui {

namespace {

// The built-in house spacing in units; a binding replaces it with its platform's.
int metricUnits_[MetricCount] = {16, 8, 16, 16, 48, 136, 32, 40};
int metricPixels_[MetricCount];

void convertMetrics() {
  for (int i = 0; i < MetricCount; ++i)
    metricPixels_[i] = Mui::toPixels(metricUnits_[i]);
}

// Division that rounds half away from zero, for the two directions of conversion.
int divideRounded(long long numerator, long long denominator) {
  const long long half = denominator / 2;
  return static_cast<int>(numerator >= 0 ? (numerator + half) / denominator
                                         : (numerator - half) / denominator);
}

} // namespace

Mui* Mui::instance_ = nullptr;
std::uint32_t Mui::nextSerial_ = 0;

Mui::Mui() {
  convertMetrics();
}

Mui::~Mui() {
  if (instance_ == this)
    instance_ = nullptr;
}

Mui& Mui::instance() {
  Mui* mui = instance_;
  XN_ASSERT(mui);
  return *mui;
}

void Mui::setInstance(Mui* mui_) {
  XN_ASSERT(mui_);
  instance_ = mui_;
}

int Mui::toPixels(int units) {
  const long long p = static_cast<long long>(units) * static_cast<int>(ppmmParameter);
  return static_cast<int>(p >= 0 ? (p + 4) / 8 : (p - 4) / 8);
}

int Mui::textToPixels(int units) {
  return toPixels(static_cast<int>(static_cast<long long>(units) *
                                   static_cast<int>(textSizeFactorParameter) / 100));
}

int Mui::toUnits(int pixels) {
  return divideRounded(static_cast<long long>(pixels) * 8, static_cast<int>(ppmmParameter));
}

int Mui::textToUnits(int pixels) {
  return divideRounded(static_cast<long long>(toUnits(pixels)) * 100,
                       static_cast<int>(textSizeFactorParameter));
}

int Mui::metric(Metric which) noexcept {
  return metricPixels_[which];
}

int Mui::metricUnits(Metric which) noexcept {
  return metricUnits_[which];
}

void Mui::setMetrics(const int units[MetricCount]) {
  std::copy(units, units + MetricCount, metricUnits_);
  convertMetrics();
}

void Mui::addObserverToAllDialogs(MuObserver* observer, bool add) {
  for (const auto& [serial, dialog] : dialogs_) {
    if (add)
      dialog->addObserver(observer);
    else
      dialog->removeObserver(observer);
  }
  if (add)
    globalObservers_.push_back(observer);
  else
    globalObservers_.erase(std::remove(globalObservers_.begin(), globalObservers_.end(), observer),
                           globalObservers_.end());
}

void Mui::registerDialog(MuDialog* dialog, bool add) {
  if (add) {
    dialogs_.emplace(nextSerial_++, dialog);
  } else {
    auto found = std::find_if(dialogs_.begin(), dialogs_.end(),
                              [dialog](const auto& entry) { return entry.second == dialog; });
    if (found != dialogs_.end())
      dialogs_.erase(found);
  }
  for (MuObserver* observer : globalObservers_) {
    if (add)
      dialog->addObserver(observer);
    else
      dialog->removeObserver(observer);
  }
}

std::vector<MuDialog*> Mui::dialogs() const {
  std::vector<MuDialog*> result;
  std::transform(dialogs_.begin(), dialogs_.end(), std::back_inserter(result),
                 [](const auto& entry) { return entry.second; });
  return result;
}

} // namespace mui
