#include "mui/qt/MuChoiceQt.h"

#include "mui/qt/EventGlueQt.h"
#include "mui/qt/LabelWrapperQt.h"
#include "mui/qt/MuiQt.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>
#include <memory>

namespace mui {

MuChoiceQt::MuChoiceQt(MuContainer* parent, const char* name, const char* label, int options)
    : MuChoice(parent, name, label, options) {
  auto wrapper = std::make_unique<LabelWrapperQt>(this, this, MuCommonQt::Traits());
  LabelWrapperQt* peer = wrapper.get();
  setCommon(std::move(wrapper));
  auto* combo = new QComboBox(peer->widget());
  combo->setEditable(isEditable());
  // Typed text stays typed text: it never becomes an item of its own.
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->setMaxVisibleItems(maxVisibleItems);
  if (isEditable() && !(options & AutoComplete))
    combo->setCompleter(nullptr);
  QObject::connect(combo, &QComboBox::currentIndexChanged, combo,
                   [this] { callFromQt([this] { selectionChanged(); }); });
  peer->setControl(combo);
}

MuChoice* MuChoiceQt::make(MuContainer* parent, const char* name, const char* label, int options) {
  return new MuChoiceQt(parent, name, label, options);
}

LabelWrapperQt* MuChoiceQt::peer() {
  return static_cast<LabelWrapperQt*>(common());
}

QComboBox* MuChoiceQt::comboBox() const {
  return static_cast<QComboBox*>(static_cast<LabelWrapperQt*>(common())->control());
}

void MuChoiceQt::setValue(int id) {
  const QSignalBlocker silent(comboBox());
  comboBox()->setCurrentIndex(indexOf(id));
}

int MuChoiceQt::getValue() {
  const int index = comboBox()->currentIndex();
  return index < 0 ? -1 : idAt(index);
}

int MuChoiceQt::itemCount() {
  return comboBox()->count();
}

void MuChoiceQt::setText(const char* text) {
  const QSignalBlocker silent(comboBox());
  const QString shown = QString::fromUtf8(text ? text : "");
  if (isEditable())
    comboBox()->setEditText(shown);
  else if (const int index = comboBox()->findText(shown, Qt::MatchExactly); index >= 0)
    comboBox()->setCurrentIndex(index);
}

plat::String MuChoiceQt::getText() {
  return plat::String(comboBox()->currentText().toUtf8().constData());
}

void MuChoiceQt::addItem(int id, const char* text) {
  const QSignalBlocker silent(comboBox());
  const int selected = comboBox()->currentIndex();
  comboBox()->addItem(QString::fromUtf8(text ? text : ""));
  // Qt selects the first item added; the platform's list selects none.
  comboBox()->setCurrentIndex(selected);
  itemAdded(static_cast<std::size_t>(comboBox()->count() - 1), id, text);
}

void MuChoiceQt::removeItem(int id) {
  const int index = indexOf(id);
  if (index < 0)
    return;
  const Removing removing(this);
  const bool selected = comboBox()->currentIndex() == index;
  comboBox()->removeItem(index);
  // Qt moves to a neighbour; the platform's list is left with no selection.
  if (selected)
    comboBox()->setCurrentIndex(-1);
  itemRemoved(index);
}

void MuChoiceQt::removeAll() {
  const Removing removing(this);
  comboBox()->clear();
  itemsRemoved();
}

int MuChoiceQt::textWidth(const char* text) {
  return QFontMetrics(MuiQt::instance().font(effectiveStyle()))
      .horizontalAdvance(QString::fromUtf8(text ? text : ""));
}

int MuChoiceQt::lineHeight() {
  return QFontMetrics(MuiQt::instance().font(effectiveStyle())).height();
}

Size MuChoiceQt::dropDownChrome() {
  QStyleOptionComboBox option;
  option.initFrom(comboBox());
  option.editable = isEditable();
  const int line = lineHeight();
  const QSize size = comboBox()->style()->sizeFromContents(QStyle::CT_ComboBox, &option,
                                                           QSize(0, line), comboBox());
  return {size.width(), size.height() - line};
}

} // namespace mui
