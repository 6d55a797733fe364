#pragma once

#include "controls/lists/RecordListModel.h"
#include "quickgrab/panel/GrabThing.h"

namespace tarnloft {

// The things of the panel's list that are in sight, so that its view makes no others. Its one role
// is `thing`.
class GrabList : public tarnloft::RecordListModel {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  using RecordListModel::RecordListModel;

  // Goes to these with the fewest steps.
  void show(const QList<GrabThing>& things);
  const QList<GrabThing>& things() const { return things_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override { return {{Qt::UserRole, "thing"}}; }

 private:
  QList<GrabThing> things_;
};

}  // namespace tarnloft
