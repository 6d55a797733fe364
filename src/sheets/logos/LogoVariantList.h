#pragma once

#include "controls/lists/RecordListModel.h"
#include "model/LogoValue.h"

#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The files of a logo set, in their order. Main thread.
class LogoVariantList : public tarnloft::RecordListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to what shows the set")

 public:
  enum Role {
    NameRole = Qt::UserRole,  // name: the file's, as the client knows it
    PathRole,                 // path: empty for one that leads out of the package
    LabelRole,                // label: of its role in the set
    PurposeRole,              // purpose: the place of that role among all
    BackdropRole              // backdrop: a Backdrop.Kind
  };

  const QList<LogoVariant>& variants() const { return variants_; }
  // Of a set in the package at that path.
  void setVariants(const QList<LogoVariant>& variants, const QString& packageURL);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 private:
  QList<LogoVariant> variants_;
  QString packageURL_;
};

}  // namespace tarnloft
