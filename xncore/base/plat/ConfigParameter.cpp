#include "plat/ConfigParameter.h"

#include "plat/Assertion.h"
#include "plat/BinaryParameter.h"
#include "plat/CatalogText.h"
#include "plat/Configuration.h"
#include "plat/DString.h"
#include "plat/LogSrc.h"
#include "plat/StringUtils.h"

namespace plat {

namespace {
LogSrc parameterLog("ConfigParameter");
}

bool isPriorityPolicy(int priority) noexcept {
  return priority >= priorityPolicy;
}

String priorityName(int priority, bool preferenceBelow) {
  if (priority == priorityDefault)
    return String("Default");
  if (priority == priorityPreference)
    return String("Preference");
  if (isPriorityPolicy(priority))
    return String(preferenceBelow ? "Policy overriding preference" : "Policy");
  return strFormat("Priority %d", priority);
}

ConfigParameter::ConfigParameter(const char* name, const ParamDescription& description,
                                 bool advanced, Configuration* group, const char* tags)
    : group_(group ? group : &Configuration::global()), advanced_(advanced),
      ownsText_(description.ownsText) {
  const char* desc = description.desc;
  const char* locDesc = description.locDesc;
  XN_ASSERT(name);
  XN_ASSERT(desc || locDesc);
  name_ = keepText(name);
  desc_ = keepText(desc);
  locDesc_ = keepText(locDesc);
  addTags(tags);
  next_ = group_->params_;
  group_->params_ = this;
}

ConfigParameter::~ConfigParameter() {
  if (!group_)
    return;
  for (ConfigParameter** link = &group_->params_; *link; link = &(*link)->next_) {
    if (*link == this) {
      *link = next_;
      break;
    }
  }
}

bool ConfigParameter::setInt(int /*value*/, int /*priority*/) {
  return false;
}

int ConfigParameter::getInt() const {
  return 0;
}

String ConfigParameter::valueToString(int value) const {
  return strFormat("%d", value);
}

const char* ConfigParameter::getDescription() const {
  return desc_ ? desc_ : XN_CATALOG_TEXT(locDesc_);
}

String ConfigParameter::getDefault() const {
  std::map<int, String> sv = getAllValues();
  auto i = sv.find(priorityDefault);
  XN_ASSERT(i != sv.end());
  return i->second;
}

bool ConfigParameter::hasTag(const char* tag) const {
  return tags_.count(String(tag)) > 0;
}

void ConfigParameter::addTags(const char* tags) {
  if (!tags)
    return;
  for (const String& tag : splitToSet(tags, ','))
    tags_.insert(tag);
}

bool ConfigParameter::isAdvanced() const {
  return advanced_ || dynamic_cast<const BinaryParameter*>(this) != nullptr;
}

void ConfigParameter::addCallback(ParameterChangedCallback* callback) {
  callbacks_.push_back(callback);
}

void ConfigParameter::notify(int priority) {
  for (ParameterChangedCallback* callback : callbacks_)
    callback->paramChanged(this, priority);
}

void ConfigParameter::notifyIfDefault() {
  if (getPriority() == priorityDefault)
    notify(priorityDefault);
}

bool ConfigParameter::reset(bool notifyCallbacks) {
  if (getPriority() == priorityDefault)
    return false;
  for (const auto& [priority, text] : getAllValues()) {
    if (priority > priorityDefault)
      unset(priority, false);
  }
  if (notifyCallbacks)
    notify(priorityDefault);
  return true;
}

void ConfigParameter::syncFrom(const ConfigParameter& other) {
  std::map<int, String> wanted = other.getAllValues();
  for (const auto& [priority, text] : getAllValues()) {
    if (!wanted.count(priority))
      unset(priority, true);
  }
  for (const auto& [priority, text] : wanted)
    setFromString(text.get(), priority);
}

const char* ConfigParameter::keepText(const char* text) {
  if (!ownsText_ || !text)
    return text;
  ownedTexts_.emplace_back(text);
  return ownedTexts_.back().get();
}

bool ConfigParameter::tracing() const noexcept {
  return group_ && group_->traceChanges();
}

LogSrc& ConfigParameter::log() {
  return parameterLog;
}

} // namespace plat
