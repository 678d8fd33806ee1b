// xnauth::Permissions: what one user or group may do, as a state for each of
// the 26 letters, together with the text it came from. A set keeps the text it
// was given and shows it back unchanged until somebody changes the set; only
// then does it fall back to the canonical form, allowed letters followed by '!'
// and the denied ones.
//
// A permission text reads: an optional '+', letters to allow, optionally '-'
// and letters to clear, optionally '!' and letters to deny, with '0' allowed
// anywhere. A group letter stands for all of its members; any other letter is
// taken as it is, defined or not.
#pragma once

#include "plat/Exception.h"
#include "plat/String.h"
#include "xnauth/PermissionDefn.h"

#include <array>

namespace xnauth {

class Permissions {
public:
  /// A text that breaks the grammar; the message quotes the whole text.
  class ParseException : public plat::Exception {
  public:
    explicit ParseException(const char* text) noexcept;
  };

  /// Every letter unset, no text.
  Permissions() noexcept;
  /// As setText. Throws ParseException.
  explicit Permissions(const char* text);

  /// Replaces the whole set by what `text` says and keeps `text` as the set's
  /// text; null gives the default set. Throws ParseException, after which the
  /// set's contents are unspecified.
  void setText(const char* text);
  /// The text as given, or, once the set has been changed, its canonical form.
  /// The canonical form is built on demand and kept, hence the mutable cache.
  const char* getText() const;
  /// Back to the state of the default constructor.
  void clear() noexcept;

  /// Stores one letter's state and drops the text, so that a preset turns into
  /// its expansion. `code` need not be defined.
  void setState(char code, PermissionState state);
  PermissionState getState(char code) const;
  /// Replaces the text by the canonical form and marks the set as given.
  void normalize();
  /// True once a text was given (even an empty one), until merge or restrict
  /// make a set that is neither operand.
  bool isSet() const noexcept { return isSet_; }

  bool isAnyAllowed() const noexcept;
  /// True when keyboard ('k') or mouse ('p') input is allowed.
  bool allowsInput() const noexcept;
  /// True when both sets allow the same letters; unset and denied count alike.
  bool equalsAllowed(const Permissions& other) const noexcept;
  /// True when all 26 states are the same.
  bool equals(const Permissions& other) const noexcept;
  /// True when the texts are the same bytes: "f" and its expansion differ.
  bool equalsText(const Permissions& other) const;
  /// True when every letter allowed or denied here has the same state in `other`.
  bool isSubsetOf(const Permissions& other) const noexcept;

  /// Adds `other`: its denials override, its allowances fill unset letters.
  void merge(const Permissions& other);
  /// Limits to `other`: its denials override, and what it leaves unset is no
  /// longer allowed here.
  void restrict(const Permissions& other);

  /// The name of the preset whose allowed letters this set allows ("No access",
  /// "Administrative", "Standard", "View-only", "Input-only"), or null.
  /// Denied letters don't count.
  const char* getDescription() const;
  /// A display form of `text`: its preset name, or "Custom (<text>)". A text
  /// that doesn't parse has no preset name.
  static plat::String describe(const char* text);

private:
  static int index(char code) noexcept { return code - minCode; }
  /// The state for `code`, or for every member when `code` is a group.
  void applyLetter(char code, PermissionState state);
  /// What merge and restrict do with the text once the states are combined.
  void finishCombining(bool changed, const Permissions& other, bool takeOtherText);

  std::array<PermissionState, nCodes> states_;
  mutable plat::String text_;
  bool isSet_;
};

} // namespace xnauth
