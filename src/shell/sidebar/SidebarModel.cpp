#include "shell/sidebar/SidebarModel.h"

#include "model/ListDifference.h"
#include "model/Uuid.h"
#include "pictures/HexColor.h"

#include <algorithm>
#include <utility>

namespace tarnloft {
namespace {

bool isMarked(const std::optional<Emblem>& emblem) {
  return !emblem || emblem->kind != Emblem::Kind::none;
}

// What a brand's row tells of it; edits of the open one show before they are on disk.
struct BrandMark {
  std::optional<Emblem> emblem;
  std::optional<QString> accentHex;
  std::optional<QString> accentHexDark;
};

BrandMark markOf(const BrandSummary& row, const BrandDocument* open) {
  if (!open || open->packageURL() != row.packageURL) {
    return {row.emblem, row.accentHex, row.accentHexDark};
  }
  const Brand& brand = open->brand();
  return {brand.emblem, brand.accentHex, brand.accentHexDark};
}

}  // namespace

SidebarModel::SidebarModel(LibraryStore& library, QObject* parent)
    : QAbstractListModel(parent), library_(library), rows_(wantedRows()) {
  for (const auto signal : {&LibraryStore::brandsChanged, &LibraryStore::selectionChanged,
                            &LibraryStore::openDocumentChanged, &LibraryStore::brandChanged,
                            &LibraryStore::unsavedChanged}) {
    connect(&library, signal, this, &SidebarModel::scheduleUpdate);
  }
}

void SidebarModel::setAppearance(ColorUtil::Appearance appearance) {
  if (std::exchange(appearance_, appearance) != appearance) scheduleUpdate();
}

int SidebarModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : int(rows_.size());
}

QVariant SidebarModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = rows_.at(index.row());
  switch (role) {
    case kind: return QVariant::fromValue(row.kind);
    case rowID: return canonicalString(row.id);
    case packageURL: return row.packageURL;
    case Qt::DisplayRole:
    case name: return row.name;
    case look: return QVariant::fromValue(lookOf(row));
    case marked: return isMarked(row.emblem);
    case selected: return row.selected;
    case unsaved: return row.unsaved;
    default: return {};
  }
}

QHash<int, QByteArray> SidebarModel::roleNames() const {
  return {{kind, "kind"}, {rowID, "rowID"},   {packageURL, "packageURL"}, {name, "name"},
          {look, "look"}, {marked, "marked"}, {selected, "selected"},     {unsaved, "unsaved"}};
}

int SidebarModel::selectedRow() const {
  const auto found = std::ranges::find_if(rows_, &Row::selected);
  return found == rows_.cend() ? -1 : int(found - rows_.cbegin());
}

void SidebarModel::scheduleUpdate() {
  if (std::exchange(updateScheduled_, true)) return;
  QMetaObject::invokeMethod(this, &SidebarModel::update, Qt::QueuedConnection);
}

int SidebarModel::rowOf(const QString& id) const {
  const auto found = std::ranges::find(rows_, QUuid::fromString(id), &Row::id);
  return found == rows_.cend() ? -1 : int(found - rows_.cbegin());
}

void SidebarModel::update() {
  updateScheduled_ = false;
  const auto selectedID = [this] {
    const int row = selectedRow();
    return row < 0 ? QUuid() : rows_.at(row).id;
  };
  const QUuid before = selectedID();
  apply(wantedRows());
  emit updated(selectedID() != before);
}

void SidebarModel::apply(const QList<Row>& rows) {
  for (const ListChange& change : listDifference(rows_, rows)) {
    const int from = int(change.from);
    const int to = int(change.to);
    const int count = int(change.count);
    switch (change.kind) {
      case ListChange::Kind::remove:
        beginRemoveRows({}, from, from + count - 1);
        rows_.remove(from, count);
        endRemoveRows();
        break;
      case ListChange::Kind::move:
        beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
        rows_.move(from, to);
        endMoveRows();
        break;
      case ListChange::Kind::insert:
        beginInsertRows({}, to, to + count - 1);
        for (int i = 0; i < count; ++i) rows_.insert(to + i, rows.at(from + i));
        endInsertRows();
        break;
      case ListChange::Kind::change:
        rows_[to] = rows.at(to);
        emit dataChanged(index(to), index(to));
        break;
    }
  }
}

QList<SidebarModel::Row> SidebarModel::wantedRows() const {
  QList<Row> rows;
  const BrandDocument* const open = library_.openDocument();
  for (const BrandSummary& brand : library_.brands()) {
    rows << brandRow(brand);
    if (!open || open->packageURL() != brand.packageURL) continue;
    for (const Section& section : open->brand().sections) {
      rows << sectionRow(section, brand.packageURL);
    }
  }
  return rows;
}

SidebarModel::Row SidebarModel::brandRow(const BrandSummary& brand) const {
  const BrandMark mark = markOf(brand, library_.openDocument());
  const bool dark = appearance_ == ColorUtil::Appearance::dark && mark.accentHexDark;
  const auto& accent = dark ? mark.accentHexDark : mark.accentHex;
  return {brand.brandID,
          Kind::brand,
          brand.packageURL,
          brand.name,
          mark.emblem,
          accent ? std::optional(shownColor(*accent)) : std::nullopt,
          library_.selection() == brand.packageURL,
          !library_.saveProblem(brand.packageURL).isEmpty()};
}

SidebarModel::Row SidebarModel::sectionRow(const Section& section, const QString& package) {
  const QString title = section.name.isEmpty() ? QStringLiteral("Untitled Section") : section.name;
  return {section.id, Kind::section, package, title, section.emblem, std::nullopt, false};
}

EmblemLook SidebarModel::lookOf(const Row& row) const {
  const bool isBrand = row.kind == Kind::brand;
  return emblemLook(row.emblem, {isBrand ? QStringLiteral("square.stack.3d.up")
                                         : QStringLiteral("rectangle.grid.1x2"),
                                 row.packageURL, isBrand ? row.name : QString(), row.accent});
}

}  // namespace tarnloft
