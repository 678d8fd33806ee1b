// mui::MuCheck: a check box with a third, indeterminate state, or a radio
// button. Radios form a Group, an observer that keeps exactly the clicked
// member set; a group lives as long as it has members. A check may show three
// named images ("off-", "on-" and "ind-" before its image base name) in place
// of the platform's box. The abstract half toggles the value on the user's
// click, raises EventChanged, and measures the box beside the label; the
// binding holds the value.
#pragma once

#include "mui/MuElement.h"

#include <vector>

namespace mui {

class MuCheck : public MuElement {
public:
  enum Type : int { Normal = 0, Radio = 1 };
  enum State : int { Unset = 0, Set = 1, Indeterminate = 2 };

  /// The radios that exclude each other. Its changed() sets the member that
  /// raised the event and clears the others, before any other observer of
  /// the member runs, since the group observes it from its construction.
  class Group : public MuObserver {
  public:
    void changed(MuElement* source) override;
    const std::vector<MuCheck*>& members() const noexcept { return members_; }

  private:
    friend class MuCheck;
    void join(MuCheck* member);
    /// Deletes the group when the last member leaves.
    void leave(MuCheck* member);

    std::vector<MuCheck*> members_;
  };

  /// A radio without `groupPeer` starts a group; a check with one joins the
  /// peer's group, if the peer has one. With `imageBase` the images
  /// "off-<base>", "on-<base>" and "ind-<base>" replace the box.
  static MuCheck* create(MuContainer* parent, const char* name, const char* label,
                         int type = Normal, MuCheck* groupPeer = nullptr,
                         const char* imageBase = nullptr);

  /// Raises no event; clears the indeterminate state.
  virtual void setValue(bool value) = 0;
  virtual bool getValue() = 0;
  /// The third state of a Normal box; no event.
  virtual void setIndeterminate() = 0;
  virtual bool isIndeterminate() = 0;
  /// The binding shows the new label.
  virtual void setLabel(const char* label);

  int minWidth(int height) override;
  int minHeight(int width) override;
  const char* typeName() override;
  plat::String describe() override;
  /// "click" with a number: the value becomes whether it isn't 0, then
  /// EventChanged, if the check is idle and shown.
  bool perform(const char* action, const char* argument) override;

  int checkType() const noexcept { return checkType_; }
  Group* group() const noexcept { return group_; }
  const char* imageBase() const noexcept { return imageBase_.get(); }
  State state();
  /// The name of the image that stands for `state`: "off-", "on-" or "ind-"
  /// before the image base; null without images.
  plat::String imageName(int state) const;
  /// The width of the box with its gap to the label, and the box's height.
  Size boxSize();
  /// The width of the box alone, which is all that a check without a label
  /// measures: a column of such checks centres their boxes.
  int markWidth();

  ~MuCheck() override;

protected:
  MuCheck(MuContainer* parent, const char* name, const char* label, int type, MuCheck* groupPeer,
          const char* imageBase);

  /// Binding: the width of the digit "0" in the element's font.
  virtual int zeroWidth() = 0;
  /// Binding: the size of the state images; empty when there are none.
  virtual Size imageSize() = 0;
  /// Binding: the room that the platform's own box and its gap to the label
  /// take, which the house measure must not fall short of.
  virtual Size nativeBoxSize() { return {}; }
  /// Binding: the width of the platform's own box without its gap.
  virtual int nativeMarkWidth() { return 0; }
  /// Binding: the user clicked the check, or pressed its key: an unset box
  /// becomes set, a set or indeterminate one unset, then EventChanged.
  void clickedByUser();

private:
  int checkType_;
  Group* group_ = nullptr;
  plat::String imageBase_;
};

/// The hook through which MuCheck::create makes the binding's check.
using MuCheckFactory = MuCheck* (*)(MuContainer* parent, const char* name, const char* label,
                                    int type, MuCheck* groupPeer, const char* imageBase);
extern MuCheckFactory muCheckFactory;

} // namespace mui
