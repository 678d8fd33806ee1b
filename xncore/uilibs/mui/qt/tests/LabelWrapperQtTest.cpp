// The caption beside a control on Qt: caption and control stand where the
// wrapper arranged them, the caption's marked letter with Alt gives the
// control the focus, the control is named by its caption for accessibility,
// and the captions of a form line up.
#include "QtForm.h"
#include "WrappedEditQt.h"

#include "mui/Mui.h"

#include <QAccessible>
#include <QTest>

namespace mui::test {
namespace {

QRect toQRect(const Rect& rect) {
  return QRect(rect.tl.x, rect.tl.y, rect.width(), rect.height());
}

using WrapperQt = QtForm;

TEST_F(WrapperQt, CaptionAndControlStandWhereTheyWereArranged) {
  WrappedEditQt* control = WrappedEditQt::create(dialog.get(), "name", "&Name:");
  const int height = control->minHeight(300);
  control->setSize({300, height});
  const LabelWrapper::Arrangement placed = control->wrapper()->arrange({300, height});
  EXPECT_EQ(control->edit()->geometry(), toQRect(placed.control));
  EXPECT_EQ(control->wrapper()->caption()->geometry(), toQRect(placed.caption));
  EXPECT_EQ(placed.control.tl.x, control->labelWidth() + Mui::metric(MetricLabelGap));
  // Neither is cut: the caption's own idea of its size fits its rectangle.
  EXPECT_LE(control->wrapper()->caption()->sizeHint().width(), placed.caption.width());
  EXPECT_LE(control->wrapper()->caption()->sizeHint().height(), placed.caption.height());
  EXPECT_GE(placed.control.height(), control->edit()->sizeHint().height());

  // A caption that must wrap gets the height it needs.
  WrappedEditQt* narrow =
      WrappedEditQt::create(dialog.get(), "long", "A caption far longer than the room it has");
  const int tall = narrow->minHeight(200);
  narrow->setSize({200, tall});
  QLabel* caption = narrow->wrapper()->caption();
  EXPECT_GE(caption->height(), caption->heightForWidth(caption->width()));
  EXPECT_GT(caption->height(), control->wrapper()->caption()->height());
  EXPECT_EQ(narrow->edit()->width(), 120);
}

TEST_F(WrapperQt, TheCaptionsMnemonicFocusesTheControlThatItNames) {
  WrappedEditQt* first = WrappedEditQt::create(dialog.get(), "first", "&First:");
  WrappedEditQt* second = WrappedEditQt::create(dialog.get(), "second", "&Second:");
  EXPECT_EQ(first->wrapper()->caption()->buddy(), first->edit());
  dialog->setVisible(true);
  QApplication::setActiveWindow(window());
  ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
  first->setFocus();
  EXPECT_TRUE(first->hasFocus());
  EXPECT_TRUE(first->edit()->hasFocus());
  QTest::keyClick(window(), Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(second->edit()->hasFocus());
  EXPECT_TRUE(second->hasFocus());
  QTest::keyClick(window(), Qt::Key_F, Qt::AltModifier);
  EXPECT_TRUE(first->edit()->hasFocus());
  // The control is called by its caption, without the mark.
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(second->edit());
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Second:");
  EXPECT_EQ(second->wrapper()->widget()->accessibleName(), "Second:");
  dialog->setVisible(false);
}

TEST_F(WrapperQt, TheCaptionsOfAFormLineUp) {
  MuLayout* column = MuLayout::create(dialog.get(), "column", MuLayout::Vertical);
  WrappedEditQt* type = WrappedEditQt::create(column, "type", "Type:");
  WrappedEditQt* name = WrappedEditQt::create(column, "name", "Display name:");
  const int captionColumn =
      std::max(type->labelWidth(), name->labelWidth()) + Mui::metric(MetricLabelGap);
  type->setLabelLayout(captionColumn, -1);
  name->setLabelLayout(captionColumn, -1);
  dialog->layout();
  const QPoint typeEdit = type->edit()->mapTo(window(), QPoint());
  const QPoint nameEdit = name->edit()->mapTo(window(), QPoint());
  EXPECT_EQ(typeEdit.x(), nameEdit.x());
  EXPECT_EQ(type->edit()->width(), name->edit()->width());
  EXPECT_GT(nameEdit.x(), name->wrapper()->caption()->mapTo(window(), QPoint()).x() +
                              name->wrapper()->caption()->sizeHint().width() - 1);
}

} // namespace
} // namespace mui::test
