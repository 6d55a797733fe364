#pragma once

#include "controls/lists/RecordListModel.h"
#include "library/LibraryStore.h"
#include "pictures/EmblemLook.h"

#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The rows of the sidebar: the library's brands in its order, and behind the open one its sections.
// Follows the library once per turn of the event loop, with the fewest signals that lead from the
// old rows to the new ones.
class SidebarModel : public tarnloft::RecordListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The sidebar has one")

 public:
  enum class Kind { Brand, Section };
  Q_ENUM(Kind)

  enum Role {
    kind = Qt::UserRole,  // Kind
    rowID,                // text: the brand's or the section's id
    packageURL,           // text: of the row's brand
    name,                 // text: never empty
    look,                 // EmblemLook: the brand's or the section's
    marked,               // bool: false if the user wants no mark on it
    selected,             // bool: the row is the selected brand's own
    unsaved               // bool: the brand's changes couldn't be saved
  };
  Q_ENUM(Role)

  struct Row {
    QUuid id;
    Kind kind = Kind::Brand;
    QString packageURL;
    QString name;
    std::optional<Emblem> emblem;
    std::optional<QColor> accent;
    bool selected = false;
    bool unsaved = false;

    bool operator==(const Row&) const = default;
  };

  // Both outlive the model.
  SidebarModel(LibraryStore& library, QObject* parent = nullptr);

  // The look whose accents the brands' marks take; light at first.
  void setAppearance(ColorUtil::Appearance appearance);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  const QList<Row>& rows() const { return rows_; }
  // Position of the selected brand's row, or -1.
  Q_INVOKABLE int selectedRow() const;

  // Where the brand's emblem is shown.
  EmblemPlace placeOf(const BrandSummary& brand) const { return placeOf(brandRow(brand)); }

  // Of the row with that id, or -1.
  Q_INVOKABLE int rowOf(const QString& id) const;

 signals:
  // The rows are those of the library as it is now.
  void updated(bool isOtherSelected);

 private:
  // What may have changed since the rows were made.
  enum class Stale { nothing, openBrand, all };

  void scheduleUpdate(Stale stale);
  void update();
  void updateOpenBrand();
  void renew(qsizetype row, const Row& value);
  QList<Row> wantedRows() const;
  QList<Row> rowsOf(const BrandSummary& brand) const;
  Row brandRow(const BrandSummary& brand) const;
  static Row sectionRow(const Section& section, const QString& package);
  static EmblemPlace placeOf(const Row& row);

  LibraryStore& library_;
  ColorUtil::Appearance appearance_ = ColorUtil::Appearance::light;
  QList<Row> rows_;
  Stale stale_ = Stale::nothing;
};

}  // namespace tarnloft
