#include "workspace/page/SectionListModel.h"

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

struct SectionListModel::Rows {
  SectionListModel& model;
  const QList<Section>& target;

  std::vector<std::unique_ptr<SectionModel>>& models = model.models_;
  QList<SectionModel*> gone = {};

  void remove(qsizetype from, qsizetype count) {
    const auto first = models.begin() + from;
    for (auto one = first; one != first + count; ++one) gone << one->release();
    models.erase(first, first + count);
  }
  void move(qsizetype from, qsizetype to) {
    auto moved = std::move(models[size_t(from)]);
    models.erase(models.begin() + from);
    models.insert(models.begin() + to, std::move(moved));
  }
  void insert(qsizetype to, qsizetype from, qsizetype count) {
    for (qsizetype i = 0; i < count; ++i) {
      models.insert(models.begin() + to + i,
                    std::make_unique<SectionModel>(model.workspace_, target.at(from + i)));
    }
  }
  void change(qsizetype /*to*/) {}
};

SectionListModel::~SectionListModel() = default;

void SectionListModel::setSections(const QList<Section>& sections, const QString& searchText) {
  const auto isModelOf = [](const auto& model, const Section& section) {
    return model->id() == section.id;
  };
  if (!std::equal(models_.begin(), models_.end(), sections.begin(), sections.end(), isModelOf)) {
    rearrange(sections);
  }
  for (qsizetype i = 0; i < sections.size(); ++i) {
    models_[size_t(i)]->setSection(sections.at(i), searchText);
    models_[size_t(i)]->setPlace(i, sections.size());
  }
  emit updated();
}

void SectionListModel::rearrange(const QList<Section>& sections) {
  std::vector<QUuid> before;
  for (const auto& model : models_) before.push_back(model->id());
  // What has changed in a section is its own model's business.
  const auto isSame = [](qsizetype, qsizetype) { return true; };
  Rows rows{*this, sections};
  carryOut(listDifference(before, idsOf(sections), isSame), rows);
  for (SectionModel* const gone : rows.gone)
    gone->deleteLater();  // behind the views that show them
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
