#include "workspace/page/SectionListModel.h"

#include "model/ListDifference.h"
#include "workspace/BrandWorkspace.h"

#include <algorithm>

namespace tarnloft {
namespace {

std::vector<QUuid> idsOf(const QList<Section>& sections) {
  std::vector<QUuid> ids;
  for (const Section& section : sections) ids.push_back(section.id);
  return ids;
}

}  // namespace

SectionListModel::~SectionListModel() = default;

void SectionListModel::setSections(const QList<Section>& sections, const QString& searchText) {
  std::vector<QUuid> before;
  for (const auto& model : models_) before.push_back(model->id());
  // What has changed in a section is its own model's business.
  const auto isSame = [](qsizetype, qsizetype) { return true; };
  for (const ListChange& change : listDifference(before, idsOf(sections), isSame)) {
    apply(change, sections);
  }
  for (qsizetype i = 0; i < sections.size(); ++i) {
    models_[size_t(i)]->setSection(sections.at(i), searchText);
    models_[size_t(i)]->setPlace(i, sections.size());
  }
}

void SectionListModel::apply(const ListChange& change, const QList<Section>& target) {
  const int from = int(change.from), to = int(change.to), count = int(change.count);
  switch (change.kind) {
    case ListChange::Kind::remove: {
      beginRemoveRows({}, from, from + count - 1);
      const auto gone = take(from, count);
      endRemoveRows();
      for (SectionModel* model : gone) model->deleteLater();  // behind the views that show them
      break;
    }
    case ListChange::Kind::move: {
      beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
      auto model = std::move(models_[size_t(from)]);
      models_.erase(models_.begin() + from);
      models_.insert(models_.begin() + to, std::move(model));
      endMoveRows();
      break;
    }
    case ListChange::Kind::insert:
      beginInsertRows({}, to, to + count - 1);
      for (int i = 0; i < count; ++i) {
        models_.insert(models_.begin() + to + i,
                       std::make_unique<SectionModel>(workspace_, target.at(from + i)));
      }
      endInsertRows();
      break;
    case ListChange::Kind::change: break;
  }
}

QList<SectionModel*> SectionListModel::take(int row, int count) {
  QList<SectionModel*> taken;
  const auto first = models_.begin() + row;
  for (auto model = first; model != first + count; ++model) taken << model->release();
  models_.erase(first, first + count);
  return taken;
}

int SectionListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int(models_.size());
}

QVariant SectionListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid) || role != SectionRole) return {};
  return QVariant::fromValue(models_[size_t(index.row())].get());
}

QHash<int, QByteArray> SectionListModel::roleNames() const { return {{SectionRole, "section"}}; }

}  // namespace tarnloft
