#include "sheets/editors/GradientStopList.h"

#include "pictures/HexColor.h"

namespace tarnloft {

void GradientStopList::setStops(const QList<GradientStop>& stops) {
  carryOut(listDifference(stops_, stops), ListRows<QList<GradientStop>>{stops_, stops});
}

int GradientStopList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int(stops_.size());
}

QVariant GradientStopList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const GradientStop& stop = stops_.at(index.row());
  switch (role) {
    case ColorRole: return shownColor(stop.hex);
    case LocationRole: return stop.location;
    default: return {};
  }
}

QHash<int, QByteArray> GradientStopList::roleNames() const {
  return {{ColorRole, "stopColor"}, {LocationRole, "location"}};
}

}  // namespace tarnloft
