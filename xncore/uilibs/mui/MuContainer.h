// mui::MuContainer: the abstract parent of every element with children. It
// owns them, finds them by dotted path, and passes style changes, focus
// queries and the overflow check down. Layout is top-down: a container lays
// out its children when it gets a size and in relayout().
#pragma once

#include "mui/MuElement.h"

#include <memory>

namespace mui {

class MuContainer : public MuElement {
public:
  /// From the front; a negative index counts from the end. Null out of range.
  virtual MuElement* getChild(int index) = 0;
  virtual int childCount() = 0;
  /// layout(), then the same on the parent, up to the dialog.
  virtual void contentChanged();
  /// Takes ownership of `element`.
  virtual void add(MuElement* element) = 0;
  /// Destroys `element`, which must be a child.
  virtual void remove(MuElement* element) = 0;
  virtual Point getOrigin();
  virtual void layout();
  /// Destroys all children.
  virtual void removeAll();

  bool isLocked() override;
  MuElement* focusedElement() override;
  void setSize(Size size) override;
  void styleChanged() override;
  MuElement* find(const char* path) override;
  void relayout() override;
  void checkOverflow(OverflowReporter& reporter) override;
  const char* typeName() override;

  /// Asserts that `element` is given, then remove().
  void removeChild(MuElement* element);

protected:
  using MuElement::MuElement;

  /// Makes this container the parent of `element`, which it now owns.
  void adopt(MuElement* element) { element->setParent(this); }
  /// The child at `index` of `count`, negative counting from the end; -1 out of range.
  static int resolveIndex(int index, int count) noexcept;
};

/// A container of exactly one child, which it owns.
class MuContainerSingle : public MuContainer {
public:
  MuElement* getChild(int index) override;
  int childCount() override;
  /// Replaces (and destroys) the child there was.
  void add(MuElement* element) override;
  void remove(MuElement* element) override;
  void removeAll() override;

  ~MuContainerSingle() override;

protected:
  using MuContainer::MuContainer;

  MuElement* child() const noexcept { return child_.get(); }

private:
  std::unique_ptr<MuElement> child_;
};

} // namespace mui
