#include "workspace/page/ItemListModel.h"

#include "model/ListDifference.h"

namespace tarnloft {

void ItemListModel::setItems(const SharedList<Item>& items) {
  const int before = count();
  const auto changes = listDifference(items_, items);
  for (const ListChange& change : changes) apply(change, items);
  items_ = items;  // the same list, in the runs that its other holders share
  if (count() != before) emit countChanged();
  if (!changes.isEmpty()) emit updated();
}

void ItemListModel::apply(const ListChange& change, const SharedList<Item>& target) {
  const int from = int(change.from), to = int(change.to), count = int(change.count);
  switch (change.kind) {
    case ListChange::Kind::remove:
      beginRemoveRows({}, from, from + count - 1);
      for (int i = 0; i < count; ++i) (void)items_.takeAt(from);
      endRemoveRows();
      break;
    case ListChange::Kind::move:
      // The view's convention counts the place in front of which the row is put.
      beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
      items_.insert(to, items_.takeAt(from));
      endMoveRows();
      break;
    case ListChange::Kind::insert:
      beginInsertRows({}, to, to + count - 1);
      for (int i = 0; i < count; ++i) items_.insert(to + i, target.at(from + i));
      endInsertRows();
      break;
    case ListChange::Kind::change:
      items_[to] = target.at(to);
      emit dataChanged(index(to), index(to));
      break;
  }
}

int ItemListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int(items_.size());
}

QVariant ItemListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Item& item = items_.at(index.row());
  switch (role) {
    case Qt::DisplayRole: return item.displayName();
    case IdRole: return item.id;
    case KindRole: return QVariant::fromValue(TileFacts::kind(item));
    default: return {};
  }
}

QHash<int, QByteArray> ItemListModel::roleNames() const {
  return {{Qt::DisplayRole, "name"}, {IdRole, "itemId"}, {KindRole, "kind"}};
}

}  // namespace tarnloft
