#include "shell/sidebar/SidebarModel.h"

#include "model/ShownText.h"
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

QString titleOf(const Section& section) {
  return section.name.isEmpty() ? QStringLiteral("Untitled Section") : shownText(section.name);
}

bool isRowOf(const SidebarModel::Row& row, const Section& section) {
  return row.id == section.id && row.name == titleOf(section) && row.emblem == section.emblem;
}

}  // namespace

SidebarModel::SidebarModel(LibraryStore& library, QObject* parent)
    : RecordListModel(parent), library_(library), rows_(wantedRows()) {
  for (const auto signal : {&LibraryStore::brandsChanged, &LibraryStore::selectionChanged,
                            &LibraryStore::openDocumentChanged, &LibraryStore::unsavedChanged}) {
    connect(&library, signal, this, [this] { scheduleUpdate(Stale::all); });
  }
  connect(&library, &LibraryStore::brandChanged, this,
          [this] { scheduleUpdate(Stale::openBrand); });
}

void SidebarModel::setAppearance(ColorUtil::Appearance appearance) {
  if (std::exchange(appearance_, appearance) != appearance) scheduleUpdate(Stale::all);
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
    case look: return QVariant::fromValue(emblemLook(row.emblem, placeOf(row)));
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

void SidebarModel::scheduleUpdate(Stale stale) {
  const Stale before = std::exchange(stale_, std::max(stale_, stale));
  if (before == Stale::nothing) {
    QMetaObject::invokeMethod(this, &SidebarModel::update, Qt::QueuedConnection);
  }
}

int SidebarModel::rowOf(const QString& id) const {
  const auto found = std::ranges::find(rows_, QUuid::fromString(id), &Row::id);
  return found == rows_.cend() ? -1 : int(found - rows_.cbegin());
}

void SidebarModel::update() {
  const auto selectedID = [this] {
    const int row = selectedRow();
    return row < 0 ? QUuid() : rows_.at(row).id;
  };
  const QUuid before = selectedID();
  if (std::exchange(stale_, Stale::nothing) == Stale::openBrand) {
    updateOpenBrand();
  } else {
    const auto rows = wantedRows();
    carryOut(listDifference(rows_, rows), ListRows<QList<Row>>{rows_, rows});
  }
  emit updated(selectedID() != before);
}

// An edit of it, such as a keystroke, changes no other brand's rows.
void SidebarModel::updateOpenBrand() {
  const BrandDocument* const open = library_.openDocument();
  if (!open) return;
  const QString& package = open->packageURL();
  const auto summary = std::ranges::find(library_.brands(), package, &BrandSummary::packageURL);
  const auto first = std::ranges::find(rows_, package, &Row::packageURL);
  if (summary == library_.brands().end() || first == rows_.end()) return;
  const auto last = std::ranges::find_if(first + 1, rows_.end(),
                                         [](const Row& row) { return row.kind == Kind::Brand; });
  const qsizetype place = first - rows_.begin();
  const QList<Section>& sections = open->brand().sections;
  const bool areSame = std::equal(first + 1, last, sections.begin(), sections.end(),
                                  [](const Row& row, const Section& s) { return row.id == s.id; });
  if (!areSame) {
    const auto rows = rowsOf(*summary);
    const auto changes = listDifference(rows_.mid(place, last - first), rows);
    return carryOut(changes, ListRows<QList<Row>>{rows_, rows, place}, int(place));
  }
  renew(place, brandRow(*summary));
  for (qsizetype i = 0; i < sections.size(); ++i) {
    const qsizetype row = place + 1 + i;
    if (!isRowOf(std::as_const(rows_).at(row), sections.at(i))) {
      renew(row, sectionRow(sections.at(i), package));
    }
  }
}

void SidebarModel::renew(qsizetype row, const Row& value) {
  if (std::as_const(rows_).at(row) == value) return;
  rows_[row] = value;
  emit dataChanged(index(int(row)), index(int(row)));
}

QList<SidebarModel::Row> SidebarModel::wantedRows() const {
  QList<Row> rows;
  for (const BrandSummary& brand : library_.brands()) rows << rowsOf(brand);
  return rows;
}

// A brand's own, and those of its sections if it is open.
QList<SidebarModel::Row> SidebarModel::rowsOf(const BrandSummary& brand) const {
  QList<Row> rows{brandRow(brand)};
  const BrandDocument* const open = library_.openDocument();
  if (!open || open->packageURL() != brand.packageURL) return rows;
  for (const Section& section : open->brand().sections) {
    rows << sectionRow(section, brand.packageURL);
  }
  return rows;
}

SidebarModel::Row SidebarModel::brandRow(const BrandSummary& brand) const {
  const BrandMark mark = markOf(brand, library_.openDocument());
  const bool dark = appearance_ == ColorUtil::Appearance::dark && mark.accentHexDark;
  const auto& accent = dark ? mark.accentHexDark : mark.accentHex;
  return {brand.brandID,
          Kind::Brand,
          brand.packageURL,
          shownText(brand.name),
          mark.emblem,
          accent ? std::optional(shownColor(*accent)) : std::nullopt,
          library_.selection() == brand.packageURL,
          !library_.saveProblem(brand.packageURL).isEmpty()};
}

SidebarModel::Row SidebarModel::sectionRow(const Section& section, const QString& package) {
  return {section.id,     Kind::Section, package, titleOf(section),
          section.emblem, std::nullopt,  false};
}

EmblemPlace SidebarModel::placeOf(const Row& row) {
  const bool isBrand = row.kind == Kind::Brand;
  return {isBrand ? QStringLiteral("square.stack.3d.up") : QStringLiteral("rectangle.grid.1x2"),
          row.packageURL, isBrand ? row.name : QString(), row.accent};
}

}  // namespace tarnloft
