#include "workspace/page/SectionModel.h"

#include "workspace/BrandWorkspace.h"

#include <algorithm>
#include <utility>

namespace tarnloft {
namespace {

const QString newColor = QStringLiteral("#4C6FFF");
const QString defaultSymbol = QStringLiteral("rectangle.grid.1x2");
const QString sampleText = QStringLiteral("The quick brown fox");

bool holdsColors(const Section& section) {
  return std::any_of(section.items.begin(), section.items.end(), [](const Item& item) {
    return std::holds_alternative<ColorPayload>(item.payload);
  });
}

}  // namespace

SectionModel::SectionModel(BrandWorkspace& workspace, const Section& section)
    : QObject(&workspace),
      workspace_(workspace),
      section_(section),
      hasColors_(holdsColors(section)) {
  connect(&workspace, &BrandWorkspace::placeChanged, this, &SectionModel::changed);
  take(section, QString());
}

QList<QUuid> SectionModel::itemOrder() const {
  QList<QUuid> order;
  order.reserve(section_.items.size());
  for (const Item& item : section_.items) order << item.id;
  return order;
}

EmblemLook SectionModel::emblem() const {
  return workspace_.lookOf(section_.emblem, defaultSymbol);
}

void SectionModel::setSection(const Section& section, const QString& searchText) {
  if (section_ == section && searchText_ == searchText) return;
  take(section, searchText);
  emit changed();
}

void SectionModel::take(const Section& section, const QString& searchText) {
  const bool isOtherSearch = std::exchange(searchText_, searchText) != searchText;
  if (!(section_.items == section.items)) hasColors_ = holdsColors(section);
  section_ = section;
  if (searchable_ && !(searchable_->items() == section.items)) searchable_.reset();
  const bool isSearching = !searchText.trimmed().isEmpty();
  if (isSearching && !searchable_) searchable_.emplace(section.items);
  const SharedList<Item> shown = isSearching ? searchable_->matching(searchText) : section.items;
  isOtherSearch ? items_.replaceItems(shown) : items_.setItems(shown);
}

void SectionModel::setPlace(qsizetype place, qsizetype count) {
  const bool isSame = place_ == place && last_ == count - 1;
  place_ = place;
  last_ = count - 1;
  if (!isSame) emit placeChanged();
}

void SectionModel::rename(const QString& name) {
  if (BrandDocument* const document = workspace_.document()) {
    document->editSection(id(), [&](Section& section) { section.name = name; });
  }
}

void SectionModel::append(ItemPayload payload, Then then) {
  BrandDocument* const document = workspace_.document();
  if (!document) return;
  const Item item = Item::create(std::move(payload));
  document->addItem(item, id());
  if (then == Then::edit) workspace_.commands().edit(item.id);
}

void SectionModel::addHeader() { append(HeaderPayload{QStringLiteral("Heading"), 1}); }

void SectionModel::addText() { append(TextPayload{QStringLiteral("Add a note…")}); }

void SectionModel::addColor() {
  workspace_.collectColorsIn(id());
  append(ColorPayload{{newColor, std::nullopt, std::nullopt}}, Then::edit);
}

void SectionModel::addGradient() {
  append(GradientPayload{{{{QUuid::createUuid(), newColor, 0},
                           {QUuid::createUuid(), QStringLiteral("#9C4CFF"), 1}},
                          45,
                          std::nullopt}},
         Then::edit);
}

void SectionModel::addFont() {
  append(FontPayload{{QStringLiteral("Helvetica Neue"), QStringLiteral("Regular"), sampleText,
                      std::nullopt, std::nullopt}},
         Then::edit);
}

void SectionModel::addCode() {
  append(CodePayload{{QStringLiteral("swift"), QStringLiteral("// Snippet"), std::nullopt}},
         Then::edit);
}

void SectionModel::addLogoSet() { append(LogoPayload{{QStringLiteral("Logo"), {}}}); }

void SectionModel::pickColorFromScreen() { workspace_.pickColor(id()); }

void SectionModel::importImages() {
  workspace_.importChosen({QStringLiteral("image/*")}, DropImport::MediaKind::image, id());
}

void SectionModel::importVideos() {
  workspace_.importChosen({QStringLiteral("video/*")}, DropImport::MediaKind::video, id());
}

void SectionModel::importFontFiles() { workspace_.importChosenFonts(id()); }

void SectionModel::editEmblem() {
  workspace_.editEmblem(id(), {.title = QStringLiteral("Section Icon"),
                               .place = {defaultSymbol, {}, {}, {}},
                               .tint = QColor(newColor)});
}

QStringList SectionModel::paletteFormats() {
  QStringList names;
  for (const auto format : allCases<PaletteExport::Format>())
    names << PaletteExport::rawValue(format);
  return names;
}

void SectionModel::copyColors(const QString& format) {
  for (const auto known : allCases<PaletteExport::Format>()) {
    if (PaletteExport::rawValue(known) != format) continue;
    workspace_.commands().copy(PaletteExport::format(PaletteExport::entries(section_), known),
                               format);
  }
}

void SectionModel::moveUp() { workspace_.moveSection(id(), -1); }

void SectionModel::moveDown() { workspace_.moveSection(id(), 1); }

void SectionModel::remove() {
  if (BrandDocument* const document = workspace_.document()) document->removeSection(id());
}

}  // namespace tarnloft
