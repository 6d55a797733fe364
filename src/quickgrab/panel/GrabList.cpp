#include "quickgrab/panel/GrabList.h"

namespace tarnloft {

void GrabList::show(const QList<GrabThing>& things) {
  carryOut(listDifference(things_, things), ListRows<QList<GrabThing>>{things_, things});
}

int GrabList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int(things_.size());
}

QVariant GrabList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != Qt::UserRole) return {};
  return QVariant::fromValue(things_.at(index.row()));
}

}  // namespace tarnloft
