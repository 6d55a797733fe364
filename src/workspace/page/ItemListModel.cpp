#include "workspace/page/ItemListModel.h"

#include "model/ShownText.h"

#include <algorithm>

namespace tarnloft {

void ItemListModel::setItems(const SharedList<Item>& items) {
  const auto changes = listDifference(items_, items);
  carryOut(changes, ListRows<SharedList<Item>>{items_, items});
  items_ = items;  // the same list, in the runs that its other holders share
  if (changes.isEmpty()) return;
  emit updated(std::any_of(changes.begin(), changes.end(), [](const ListChange& change) {
    return change.kind != ListChange::Kind::change;
  }));
}

void ItemListModel::replaceItems(const SharedList<Item>& items) {
  if (items_ == items) return;
  const int before = count();
  beginResetModel();
  items_ = items;
  endResetModel();
  if (count() != before) emit countChanged();
  emit updated(true);
}

int ItemListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int(items_.size());
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Item& item = items_.at(index.row());
  switch (role) {
    case Qt::DisplayRole: return shownText(item.displayName());
    case IdRole: return item.id;
    case KindRole: return QVariant::fromValue(TileFacts::kind(item));
    default: return {};
  }
}

QHash<int, QByteArray> ItemListModel::roleNames() const {
  return {{Qt::DisplayRole, "name"}, {IdRole, "itemId"}, {KindRole, "kind"}};
}

}  // namespace tarnloft
