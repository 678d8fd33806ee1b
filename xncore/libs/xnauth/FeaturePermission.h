// xnauth::FeaturePermission: the shared shape of the objects through which a
// feature library adds its letter to the alphabet. Such an object defines its
// letter, with the description in the language in force, for exactly as long
// as it lives; the program keeps one of each for its whole run.
#pragma once

namespace xnauth {

class FeaturePermission {
public:
  FeaturePermission(const FeaturePermission&) = delete;
  FeaturePermission& operator=(const FeaturePermission&) = delete;

  char code() const noexcept { return code_; }

protected:
  /// Defines `code` with the text of `descriptionKey`; `groups` and
  /// `parameters` are as for definePermission.
  FeaturePermission(char code, const char* descriptionKey, const char* groups,
                    const char* parameters);
  /// Undefines the letter again. Not virtual: nobody deletes a feature
  /// permission through this base.
  ~FeaturePermission();

private:
  char code_;
};

} // namespace xnauth
