#pragma once

#include "model/ListDifference.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// A list model that follows a list of records: it goes from one list to the next by the steps of
// their difference, and views are told of each. Those of other modules name it in full, which is
// how the registration of types finds it. Main thread.
class RecordListModel : public QAbstractListModel {
  Q_OBJECT
  QML_ANONYMOUS
  Q_PROPERTY(int count READ count NOTIFY countChanged)

 public:
  using QAbstractListModel::QAbstractListModel;

  int count() const { return rowCount(); }

 signals:
  void countChanged();

 protected:
  // Carries out the steps on what the model holds, through
  //   remove(from, count), move(from, to), insert(to, from, count), change(to)
  // with positions as in `ListChange`. `offset` rows stand in front of the list.
  template <class Rows>
  void carryOut(const QList<ListChange>& changes, Rows&& rows, int offset = 0) {
    using Kind = ListChange::Kind;
    const int before = count();
    for (const ListChange& change : changes) {
      const int from = int(change.from) + offset, to = int(change.to) + offset;
      const int count = int(change.count);
      switch (change.kind) {
        case Kind::remove:
          beginRemoveRows({}, from, from + count - 1);
          rows.remove(change.from, change.count);
          endRemoveRows();
          break;
        case Kind::move:
          // The view's convention counts the place in front of which the row is put.
          beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
          rows.move(change.from, change.to);
          endMoveRows();
          break;
        case Kind::insert:
          beginInsertRows({}, to, to + count - 1);
          rows.insert(change.to, change.from, change.count);
          endInsertRows();
          break;
        case Kind::change:
          rows.change(change.to);
          emit dataChanged(index(to), index(to));
          break;
      }
    }
    if (count() != before) emit countChanged();
  }

  // The rows of a plain list on its way to another one.
  template <class List>
  struct ListRows {
    List& list;
    const List& target;
    qsizetype offset = 0;  // of the target's first element in the list

    void remove(qsizetype from, qsizetype count) {
      while (count-- > 0) (void)list.takeAt(from + offset);
    }
    void move(qsizetype from, qsizetype to) {
      list.insert(to + offset, list.takeAt(from + offset));
    }
    void insert(qsizetype to, qsizetype from, qsizetype count) {
      for (qsizetype i = 0; i < count; ++i) list.insert(to + i + offset, target.at(from + i));
    }
    void change(qsizetype to) { list[to + offset] = target.at(to); }
  };
};

}  // namespace tarnloft
