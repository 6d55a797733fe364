#pragma once

#include "controls/lists/RecordListModel.h"
#include "workspace/page/SectionModel.h"

#include <memory>
#include <vector>

namespace tarnloft {

// The sections of the open brand, in order. Each keeps its `SectionModel` for as long as it is in
// the brand. Main thread.
class SectionListModel : public tarnloft::RecordListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a workspace")

 public:
  enum Role {
    SectionRole = Qt::UserRole  // SectionModel*
  };

  // The workspace outlives it.
  explicit SectionListModel(BrandWorkspace& workspace) : workspace_(workspace) {}
  ~SectionListModel() override;

  BrandWorkspace& workspace() const { return workspace_; }
  void setSections(const QList<Section>& sections, const QString& searchText);
  const std::vector<std::unique_ptr<SectionModel>>& models() const { return models_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = SectionRole) const override;
  QHash<int, QByteArray> roleNames() const override;

 signals:
  // After all rows of a new list, and what is shown in each.
  void updated();

 private:
  struct Rows;

  void rearrange(const QList<Section>& sections);

  BrandWorkspace& workspace_;
  std::vector<std::unique_ptr<SectionModel>> models_;
};

}  // namespace tarnloft
