// mui::MuListQt: the list of the Qt binding, a QTreeView over a model of
// the list's rows, with a header only when the style asks for one.
#pragma once

#include "mui/MuList.h"
#include "mui/qt/ListViewQt.h"

#include <QPointer>

namespace mui {

class ListModelQt;

class MuListQt : public MuList {
public:
  static MuList* make(MuContainer* parent, const char* name, int listStyle, Callback* callback);
  ~MuListQt() override;

  void ensureVisible(int row) override;
  void invalidateRow(int row) override;
  void styleChanged() override;

  ListViewQt* view() const noexcept { return view_; }

protected:
  int textWidth(const char* text) override;
  int clientWidth() override;
  void showSelection(int row) override;
  void rowInserted(int row) override;
  void rowRemoved(int row) override;
  void applyColumnWidths(const std::vector<int>& widths) override;

private:
  MuListQt(MuContainer* parent, const char* name, int listStyle, Callback* callback);

  QPointer<ListViewQt> view_;
  ListModelQt* model_;
};

} // namespace mui
