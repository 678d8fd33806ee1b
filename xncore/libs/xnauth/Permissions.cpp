#include "xnauth/Permissions.h"

#include "loc/Localize.h"
#include "plat/Assertion.h"
#include "plat/DString.h"
#include "xnauth/TextKeys.h"

#include <algorithm>
#include <cstring>

namespace xnauth {

Permissions::ParseException::ParseException(const char* text) noexcept
    : Exception(plat::formatted, "Invalid permissions string: %s", text) {
  setType("PermissionsParse");
}

Permissions::Permissions() noexcept : isSet_(false) {
  states_.fill(Unset);
}

Permissions::Permissions(const char* text) : Permissions() {
  setText(text);
}

void Permissions::setText(const char* text) {
  clear();
  if (!text)
    return;
  text_ = plat::String(text);
  isSet_ = true;

  PermissionState mode = Allow;
  bool plusSeen = false;
  for (const char* at = text; *at; ++at) {
    char ch = *at;
    switch (ch) {
    case '+':
      if (mode != Allow || plusSeen)
        throw ParseException(text);
      plusSeen = true;
      break;
    case '-':
      if (mode != Allow)
        throw ParseException(text);
      mode = Unset;
      break;
    case '!':
      if (mode == Deny)
        throw ParseException(text);
      mode = Deny;
      break;
    case '0':
      break;
    default:
      if (ch < minCode || ch >= minCode + nCodes)
        throw ParseException(text);
      applyLetter(ch, mode);
    }
  }
}

void Permissions::applyLetter(char code, PermissionState state) {
  const auto& groups = getPermissionGroupDefns();
  auto group = groups.find(code);
  if (group == groups.end()) {
    states_[index(code)] = state;
    return;
  }
  for (int i = 0; i < nCodes; ++i) {
    if (group->second[i])
      states_[i] = state;
  }
}

const char* Permissions::getText() const {
  if (text_.isNull()) {
    plat::DString text(""); // a buffer even for the empty set, whose text is "" and not null
    auto appendLetters = [&](PermissionState state) {
      for (int i = 0; i < nCodes; ++i) {
        if (states_[i] == state)
          text.appendChar(minCode + i);
      }
    };
    appendLetters(Allow);
    if (std::find(states_.begin(), states_.end(), Deny) != states_.end()) {
      text.appendChar('!');
      appendLetters(Deny);
    }
    text_ = text.takeString();
  }
  return text_.get();
}

void Permissions::clear() noexcept {
  states_.fill(Unset);
  text_ = plat::String();
  isSet_ = false;
}

void Permissions::setState(char code, PermissionState state) {
  XN_ASSERT(code >= minCode && code < minCode + nCodes);
  states_[index(code)] = state;
  text_ = plat::String();
}

PermissionState Permissions::getState(char code) const {
  XN_ASSERT(code >= minCode && code < minCode + nCodes);
  return states_[index(code)];
}

void Permissions::normalize() {
  text_ = plat::String();
  getText();
  isSet_ = true;
}

bool Permissions::isAnyAllowed() const noexcept {
  for (PermissionState state : states_) {
    if (state == Allow)
      return true;
  }
  return false;
}

bool Permissions::allowsInput() const noexcept {
  return states_[index('k')] == Allow || states_[index('p')] == Allow;
}

bool Permissions::equalsAllowed(const Permissions& other) const noexcept {
  for (int i = 0; i < nCodes; ++i) {
    if ((states_[i] == Allow) != (other.states_[i] == Allow))
      return false;
  }
  return true;
}

bool Permissions::equals(const Permissions& other) const noexcept {
  return states_ == other.states_;
}

bool Permissions::equalsText(const Permissions& other) const {
  return std::strcmp(getText(), other.getText()) == 0;
}

bool Permissions::isSubsetOf(const Permissions& other) const noexcept {
  for (int i = 0; i < nCodes; ++i) {
    if (states_[i] != Unset && states_[i] != other.states_[i])
      return false;
  }
  return true;
}

void Permissions::merge(const Permissions& other) {
  bool changed = false;
  for (int i = 0; i < nCodes; ++i) {
    PermissionState before = states_[i];
    if (other.states_[i] == Deny)
      states_[i] = Deny;
    else if (other.states_[i] == Allow && before == Unset)
      states_[i] = Allow;
    changed = changed || states_[i] != before;
  }
  finishCombining(changed, other, other.isSet_);
}

void Permissions::restrict(const Permissions& other) {
  bool changed = false;
  for (int i = 0; i < nCodes; ++i) {
    PermissionState before = states_[i];
    if (other.states_[i] == Deny)
      states_[i] = Deny;
    else if (other.states_[i] == Unset && before == Allow)
      states_[i] = Unset;
    changed = changed || states_[i] != before;
  }
  finishCombining(changed, other, !other.text_.isNull());
}

void Permissions::finishCombining(bool changed, const Permissions& other, bool takeOtherText) {
  if (!changed)
    return;
  if (equals(other)) {
    // The result is `other` itself, so it may as well read like it. Without a
    // text to take, the old one no longer fits the states and must go.
    text_ = takeOtherText ? other.text_ : plat::String();
    isSet_ = true;
  } else {
    text_ = plat::String();
    isSet_ = false;
  }
}

const char* Permissions::getDescription() const {
  struct Preset {
    const char* text;
    const char* key;
  };
  static constexpr Preset presets[] = {
      {"", textkey::xnauth_permissions_desc_noaccess},
      {"f", textkey::xnauth_permissions_desc_full},
      {"d", textkey::xnauth_permissions_desc_defaults},
      {"v", textkey::xnauth_permissions_desc_viewonly},
      {"i", textkey::xnauth_permissions_desc_inputonly},
  };
  // Parsed on every call, since the groups change as features come and go.
  for (const Preset& preset : presets) {
    if (equalsAllowed(Permissions(preset.text)))
      return XN_TEXT(preset.key);
  }
  return nullptr;
}

plat::String Permissions::describe(const char* text) {
  const char* description = nullptr;
  try {
    description = Permissions(text).getDescription();
  } catch (const ParseException&) {
    // Not an error here: such a text simply has no preset name.
  }
  if (description)
    return plat::String(description);
  return plat::strFormat("%s (%s)", XN_TEXT(textkey::xnauth_permissions_desc_custom), text);
}

} // namespace xnauth
