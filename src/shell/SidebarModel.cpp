#include "shell/SidebarModel.h"

#include "model/ListDifference.h"
#include "model/Uuid.h"
#include "shell/AccentColor.h"

#include <QColor>

#include <algorithm>
#include <utility>

namespace tarnloft {
namespace {

SidebarModel::Row sectionRow(const Section& section, const QString& packageURL) {
  SidebarModel::Row row;
  row.id = section.id;
  row.kind = SidebarModel::Kind::section;
  row.packageURL = packageURL;
  row.name = section.name.isEmpty() ? QStringLiteral("Untitled Section") : section.name;
  row.emblem = section.emblem;
  return row;
}

}  // namespace

SidebarModel::SidebarModel(LibraryStore& library, const FileStore& files, QObject* parent)
    : QAbstractListModel(parent), library_(library), files_(files), rows_(wantedRows()) {
  for (const auto signal : {&LibraryStore::brandsChanged, &LibraryStore::selectionChanged,
                            &LibraryStore::openDocumentChanged, &LibraryStore::brandChanged}) {
    connect(&library, signal, this, &SidebarModel::scheduleUpdate);
  }
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
    case look: return QVariant::fromValue(lookOf(row, row.accentHex));
    case lookDark:
      return QVariant::fromValue(
          lookOf(row, row.accentHexDark ? row.accentHexDark : row.accentHex));
    case marked: return !row.emblem || row.emblem->kind != Emblem::Kind::none;
    case selected: return row.selected;
    default: return {};
  }
}

QHash<int, QByteArray> SidebarModel::roleNames() const {
  return {{kind, "kind"},     {rowID, "rowID"},      {packageURL, "packageURL"},
          {name, "name"},     {look, "look"},        {lookDark, "lookDark"},
          {marked, "marked"}, {selected, "selected"}};
}

EmblemLook SidebarModel::lookOf(const Row& row, const std::optional<QString>& accentHex) const {
  if (row.kind == Kind::section) {
    return emblemLook(row.emblem, {QStringLiteral("rectangle.grid.1x2"), row.packageURL, {}, {}},
                      files_);
  }
  return emblemLook(
      row.emblem,
      {QStringLiteral("square.stack.3d.up"), row.packageURL, row.name, accentColor(accentHex)},
      files_);
}

int SidebarModel::selectedRow() const {
  const auto found = std::ranges::find_if(rows_, &Row::selected);
  return found == rows_.cend() ? -1 : int(found - rows_.cbegin());
}

void SidebarModel::scheduleUpdate() {
  if (std::exchange(updateScheduled_, true)) return;
  QMetaObject::invokeMethod(this, &SidebarModel::update, Qt::QueuedConnection);
}

void SidebarModel::update() {
  updateScheduled_ = false;
  apply(wantedRows());
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
  Row row{brand.brandID,       Kind::brand,
          brand.packageURL,    brand.name,
          brand.emblem,        brand.accentHex,
          brand.accentHexDark, library_.selection() == brand.packageURL};
  const BrandDocument* const open = library_.openDocument();
  if (row.selected && open && open->packageURL() == brand.packageURL) {
    // Edits of the open brand show at once, before they are on disk.
    row.emblem = open->brand().emblem;
    row.accentHex = open->brand().accentHex;
    row.accentHexDark = open->brand().accentHexDark;
  }
  return row;
}

}  // namespace tarnloft
