#pragma once

#include "controls/lists/RecordListModel.h"
#include "document/PackageVersions.h"

#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// A brand's versions, the newest first. Main thread.
class VersionList : public tarnloft::RecordListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a sheet")

 public:
  enum Role {
    TitleRole = Qt::UserRole,  // the label, or what it is without one
    DateRole,                  // text
    SyncedRole                 // bool: it came from another machine
  };

  const QList<BrandVersion>& versions() const { return versions_; }
  void setVersions(const QList<BrandVersion>& versions);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  // In the user's medium date and short time.
  static QString dateText(Timestamp moment);

 private:
  QList<BrandVersion> versions_;
};

}  // namespace tarnloft
