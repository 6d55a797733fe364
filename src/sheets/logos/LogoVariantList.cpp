#include "sheets/logos/LogoVariantList.h"

#include "document/Package.h"
#include "model/ShownText.h"
#include "pictures/Backdrop.h"

#include <utility>

namespace tarnloft {

void LogoVariantList::setVariants(const QList<LogoVariant>& variants, const QString& packageURL) {
  const bool hasMoved = std::exchange(packageURL_, packageURL) != packageURL;
  carryOut(listDifference(variants_, variants), ListRows<QList<LogoVariant>>{variants_, variants});
  if (hasMoved && count() > 0) emit dataChanged(index(0), index(count() - 1), {PathRole});
}

int LogoVariantList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int(variants_.size());
}

QVariant LogoVariantList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const LogoVariant& variant = variants_.at(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case NameRole: return shownText(variant.asset.originalName);
    case PathRole: return Package::assetPath(packageURL_, variant.asset).value_or(QString());
    case LabelRole: return label(variant.role);
    case PurposeRole: return int(variant.role);
    case BackdropRole: return Backdrop::of(variant.background);
    default: return {};
  }
}

QHash<int, QByteArray> LogoVariantList::roleNames() const {
  return {{NameRole, "name"},
          {PathRole, "path"},
          {LabelRole, "label"},
          {PurposeRole, "purpose"},
          {BackdropRole, "backdrop"}};
}

}  // namespace tarnloft
