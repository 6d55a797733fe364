#include "sheets/UsageNoteList.h"

namespace tarnloft {

void UsageNoteList::setNotes(const QList<UsageNote>& notes) {
  carryOut(listDifference(notes_, notes), ListRows<QList<UsageNote>>{notes_, notes});
}

int UsageNoteList::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int(notes_.size());
}

QVariant UsageNoteList::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const UsageNote& note = notes_.at(index.row());
  switch (role) {
    case KindRole: return int(note.kind);
    case Qt::DisplayRole:
    case TextRole: return note.text;
    default: return {};
  }
}

QHash<int, QByteArray> UsageNoteList::roleNames() const {
  return {{KindRole, "kind"}, {TextRole, "text"}};
}

}  // namespace tarnloft
