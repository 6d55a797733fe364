#pragma once

#include "controls/lists/RecordListModel.h"
#include "model/GradientValue.h"

namespace tarnloft {

// A gradient's stops, in the user's order. Main thread.
class GradientStopList : public tarnloft::RecordListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to an editor")

 public:
  enum Role {
    ColorRole = Qt::UserRole,  // stopColor, gray where its hex is none
    LocationRole               // location, 0 to 1
  };

  const QList<GradientStop>& stops() const { return stops_; }
  void setStops(const QList<GradientStop>& stops);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 private:
  QList<GradientStop> stops_;
};

}  // namespace tarnloft
