#pragma once

#include <QAbstractItemModel>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Keeps a list's views in the order of their rows among the children of `rows`, in which assistive
// technology goes through them; a list makes views as it needs them, and moves them about. Each
// view tells its row by the property `index`.
//   ListView { id: list; RowOrder { model: list.model; rows: list.contentItem } }
class RowOrder : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QAbstractItemModel* model READ model WRITE setModel NOTIFY changed REQUIRED)
  Q_PROPERTY(QQuickItem* rows READ rows WRITE setRows NOTIFY changed REQUIRED)

 public:
  using QObject::QObject;

  QAbstractItemModel* model() const { return model_; }
  void setModel(QAbstractItemModel* model);
  QQuickItem* rows() const { return rows_; }
  void setRows(QQuickItem* rows);

 signals:
  void changed();

 private:
  void arrangeSoon();
  void arrange();

  QPointer<QAbstractItemModel> model_;
  QPointer<QQuickItem> rows_;
  bool isDue_ = false;
};

}  // namespace tarnloft
