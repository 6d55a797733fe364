#include "sheets/versions/VersionList.h"

#include "model/ShownText.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>

namespace tarnloft {
namespace {

// The toolkit has a long and a short form alone: the long one without the day of the week and with
// the short name of the month.
QString mediumDateFormat(const QLocale& locale) {
  QString format = locale.dateFormat(QLocale::LongFormat);
  static const QRegularExpression weekday(QStringLiteral("\\s*d{3,4}\\s*[,،、]?\\s*"));
  format.remove(weekday);
  return format.replace(QStringLiteral("MMMM"), QStringLiteral("MMM"));
}

// Lists are compared by ids.
std::vector<QUuid> idsOf(const QList<BrandVersion>& versions) {
  std::vector<QUuid> ids;
  for (const BrandVersion& version : versions)
    ids.push_back(QUuid::createUuidV5(QUuid(), version.url));
  return ids;
}

}  // namespace

void VersionList::setVersions(const QList<BrandVersion>& versions) {
  const auto isSame = [&](qsizetype before, qsizetype now) {
    return versions_.at(before) == versions.at(now);
  };
  carryOut(listDifference(idsOf(versions_), idsOf(versions), isSame),
           ListRows<QList<BrandVersion>>{versions_, versions});
}

int VersionList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int(versions_.size());
}

QString VersionList::dateText(Timestamp moment) {
  const QLocale locale;
  const auto local = QDateTime::fromMSecsSinceEpoch(moment.time_since_epoch().count());
  return locale.toString(local.date(), mediumDateFormat(locale)) + QStringLiteral(", ") +
         locale.toString(local.time(), QLocale::ShortFormat);
}

QVariant VersionList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const BrandVersion& version = versions_.at(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case TitleRole: return shownText(version.label.value_or(QStringLiteral("Snapshot")));
    case DateRole: return dateText(version.createdAt);
    case SyncedRole: return version.label == PackageVersions::syncedLabel;
    default: return {};
  }
}

QHash<int, QByteArray> VersionList::roleNames() const {
  return {{TitleRole, "title"}, {DateRole, "date"}, {SyncedRole, "synced"}};
}

}  // namespace tarnloft
