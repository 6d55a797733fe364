#include "shell/sidebar/RowOrder.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tarnloft {

void RowOrder::setModel(QAbstractItemModel* model) {
  if (model_ == model) return;
  if (model_) model_->disconnect(this);
  model_ = model;
  if (model_) connect(model_, &QAbstractItemModel::rowsMoved, this, &RowOrder::arrangeSoon);
  emit changed();
}

void RowOrder::setRows(QQuickItem* rows) {
  if (rows_ == rows) return;
  if (rows_) rows_->disconnect(this);
  rows_ = rows;
  if (rows_) connect(rows_, &QQuickItem::childrenChanged, this, &RowOrder::arrangeSoon);
  arrangeSoon();
  emit changed();
}

void RowOrder::arrangeSoon() {
  if (std::exchange(isDue_, true)) return;
  QMetaObject::invokeMethod(this, &RowOrder::arrange, Qt::QueuedConnection);
}

void RowOrder::arrange() {
  isDue_ = false;
  if (!rows_) return;
  std::vector<std::pair<int, QQuickItem*>> views;
  for (QQuickItem* const child : rows_->childItems()) {
    const QVariant index = child->property("index");
    if (index.isValid()) views.emplace_back(index.toInt(), child);
  }
  const auto row = &std::pair<int, QQuickItem*>::first;
  if (std::ranges::is_sorted(views, {}, row)) return;
  std::ranges::stable_sort(views, {}, row);
  for (size_t i = 1; i < views.size(); ++i) views[i].second->stackAfter(views[i - 1].second);
}

}  // namespace tarnloft
