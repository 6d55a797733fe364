#include "workspace/search/SearchResults.h"

#include "model/ShownText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarnloft {
namespace {

const QString brandSymbol = QStringLiteral("square.stack.3d.up");

// By the hit's `typeLabel`.
constexpr std::array<std::pair<const char*, const char*>, 8> symbols{
    {{"Color", "paintpalette"},
     {"Gradient", "square.righthalf.filled"},
     {"Image", "photo"},
     {"Video", "play.rectangle"},
     {"Type", "textformat"},
     {"Code", "chevron.left.forwardslash.chevron.right"},
     {"Header", "textformat.size.larger"},
     {"Text", "text.alignleft"}}};

QString symbolOf(const SearchHit& hit) {
  if (hit.isSection()) return QStringLiteral("rectangle.grid.1x2");
  for (const auto& [label, symbol] : symbols) {
    if (hit.typeLabel == QLatin1String(label)) return QLatin1String(symbol);
  }
  return QStringLiteral("doc");
}

}  // namespace

// What has changed in the library meanwhile is looked for again.
SearchResults::SearchResults(LibraryStore& library) : library_(library) {
  const auto again = [this] {
    if (!wanted_.isEmpty()) search(wanted_);
  };
  connect(&library, &LibraryStore::brandsChanged, this, again);
  connect(&library, &LibraryStore::brandChanged, this, again);
}

void SearchResults::search(const QString& query) {
  wanted_ = query;
  if (query.isEmpty()) return show(query, {});
  library_.searchAllBrands(query, [self = QPointer(this), query](SearchHits hits) {
    if (self && self->wanted_ == query) self->show(query, std::move(hits));
  });
}

void SearchResults::show(const QString& query, SearchHits hits) {
  beginResetModel();
  query_ = query;
  hits_ = std::move(hits);
  endResetModel();
  emit changed();
}

const SearchHits::Group* SearchResults::group(const QString& package) const {
  const auto& groups = hits_.groups();
  const auto found = std::find_if(groups.begin(), groups.end(),
                                  [&](const auto& group) { return group.brandURL == package; });
  return found == groups.end() ? nullptr : &*found;
}

QString SearchResults::brandName(const QString& package) const {
  const auto* const found = group(package);
  return found ? shownText(found->brand->brandName()) : QString();
}

EmblemLook SearchResults::brandEmblem(const QString& package) const {
  const auto* const found = group(package);
  if (!found) return {};
  return emblemLook(found->brand->brandEmblem(), {brandSymbol, package, {}, {}});
}

int SearchResults::hitCount(const QString& package) const {
  const auto* const found = group(package);
  return found ? int(found->numbers.size()) : 0;
}

int SearchResults::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count();
}

QVariant SearchResults::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  if (role == BrandRole) return hits_.groupOf(index.row()).brandURL;
  const SearchHit hit = hits_.at(index.row());
  switch (role) {
    case Qt::DisplayRole:
    case TitleRole: return shownText(hit.title);
    case DetailRole:
      return hit.isSection()
                 ? hit.typeLabel
                 : hit.typeLabel + QStringLiteral(" · in ") + shownText(hit.sectionName);
    case SymbolRole: return symbolOf(hit);
    default: return {};
  }
}

QHash<int, QByteArray> SearchResults::roleNames() const {
  return {
      {TitleRole, "title"}, {DetailRole, "detail"}, {SymbolRole, "symbol"}, {BrandRole, "brand"}};
}

}  // namespace tarnloft
