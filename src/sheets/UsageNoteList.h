#pragma once

#include "controls/lists/RecordListModel.h"
#include "model/UsageNote.h"

#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// An item's rules, in their order. Main thread.
class UsageNoteList : public tarnloft::RecordListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a sheet")

 public:
  enum Role {
    KindRole = Qt::UserRole,  // UsageNotesSheet::Kind, as a number
    TextRole                  // text
  };

  const QList<UsageNote>& notes() const { return notes_; }
  void setNotes(const QList<UsageNote>& notes);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 private:
  QList<UsageNote> notes_;
};

}  // namespace tarnloft
