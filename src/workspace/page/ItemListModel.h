#pragma once

#include "controls/lists/RecordListModel.h"
#include "model/SharedList.h"
#include "workspace/tiles/TileFacts.h"

#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The items of a section that are shown, in order. A new value shows as the fewest removals, moves,
// insertions and changes, by id. Main thread.
class ItemListModel : public tarnloft::RecordListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a section")

 public:
  enum Role {
    IdRole = Qt::UserRole,  // QUuid
    KindRole                // TileKind::Kind
  };

  using RecordListModel::RecordListModel;

  const SharedList<Item>& items() const { return items_; }
  void setItems(const SharedList<Item>& items);
  // The same without the single steps, for lists that have little in common.
  void replaceItems(const SharedList<Item>& items);

  int rowCount(const QModelIndex& parent = {}) const override;
  // The display role is the item's name.
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QHash<int, QByteArray> roleNames() const override;

 signals:
  // After all rows of a new list. Otherwise items may have changed where they stand, but are the
  // same.
  void updated(bool areOthers);

 private:
  SharedList<Item> items_;
};

}  // namespace tarnloft
