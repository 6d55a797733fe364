#include "shell/sidebar/Sidebar.h"

#include "controls/sheets/NameSheet.h"
#include "controls/sheets/Question.h"
#include "pictures/HexColor.h"
#include "platform/DesktopWords.h"
#include "sheets/AccentColorSheet.h"
#include "sheets/emblems/EmblemPicker.h"

#include <QPointer>

#include <algorithm>
#include <utility>

namespace tarnloft {
namespace {

constexpr QRgb defaultTint = 0xff4c6fff;  // of an emblem's ground, in a brand without an accent

}  // namespace

Sidebar::Sidebar(const WorkspaceServices& services, SheetHost& sheets, QObject* parent)
    : QObject(parent),
      services_(services),
      library_(services.library),
      sheets_(sheets),
      rows_(services.library) {}

std::optional<BrandSummary> Sidebar::brandAt(const QString& packageURL) const {
  const QList<BrandSummary>& brands = library_.brands();
  const auto found = std::ranges::find(brands, packageURL, &BrandSummary::packageURL);
  return found == brands.cend() ? std::nullopt : std::optional(*found);
}

std::optional<BrandSummary> Sidebar::brandOf(const QUuid& id) const {
  const QList<BrandSummary>& brands = library_.brands();
  const auto found = std::ranges::find(brands, id, &BrandSummary::brandID);
  return found == brands.cend() ? std::nullopt : std::optional(*found);
}

void Sidebar::setFolded(bool folded) {
  if (isFolded_ == folded) return;
  setOpen(false);
  isFolded_ = folded;
  emit foldedChanged();
}

void Sidebar::setOpen(bool open) {
  open = open && isFolded_;
  if (std::exchange(isOpen_, open) != open) emit openChanged();
}

void Sidebar::select(const QString& packageURL) {
  library_.select(packageURL);
  setOpen(false);
}

void Sidebar::scrollToSection(const QString& id) {
  library_.setScrollToSection(QUuid::fromString(id));
  setOpen(false);
}

void Sidebar::duplicate(const QString& packageURL) {
  if (const auto brand = brandAt(packageURL)) library_.duplicateBrand(*brand);
}

void Sidebar::exportPage(const QString& packageURL) {
  if (const auto brand = brandAt(packageURL)) library_.exportBrandPage(*brand);
}

void Sidebar::exportFile(const QString& packageURL) {
  if (const auto brand = brandAt(packageURL)) library_.exportBrand(*brand);
}

void Sidebar::reveal(const QString& packageURL) { services_.viewer.reveal(packageURL); }

QString Sidebar::revealText() { return inDesktopWords(QStringLiteral("Reveal in Finder")); }

// It may be renamed or go on another machine.
void Sidebar::endWithBrand(SheetModel& sheet, const QUuid& brand) {
  connect(&library_, &LibraryStore::brandsChanged, &sheet, [this, &sheet, brand] {
    if (!brandOf(brand)) emit sheet.finished();
  });
}

void Sidebar::rename(const QString& packageURL) {
  const auto brand = brandAt(packageURL);
  if (!brand) return;
  const auto renamed = [this, id = brand->brandID](const QString& name) {
    const auto now = brandOf(id);
    if (!now) return;
    if (library_.selection() != now->packageURL) library_.select(now->packageURL);
    library_.renameSelectedBrand(name);
  };
  NameSheet* const sheet = sheets_.show(std::make_unique<NameSheet>(
      NameSheet::Words{.title = QStringLiteral("Rename Brand")}, brand->name, renamed));
  endWithBrand(*sheet, brand->brandID);
}

void Sidebar::whenOpen(const QString& packageURL,
                       std::function<void(const BrandSummary&, BrandDocument&)> edit) {
  const auto brand = brandAt(packageURL);
  if (!brand) return;
  const auto loaded = [self = QPointer(this), id = brand->brandID, edit = std::move(edit)] {
    BrandDocument* const document = self ? self->library_.openDocument() : nullptr;
    const auto now = self ? self->brandOf(id) : std::nullopt;
    // It may have failed to open, or another one was selected meanwhile.
    if (document && now && now->packageURL == document->packageURL()) edit(*now, *document);
  };
  library_.whenLoaded(packageURL, loaded);
}

void Sidebar::editEmblem(const QString& packageURL) {
  whenOpen(packageURL, [this](const BrandSummary& brand, BrandDocument& document) {
    const QColor accent = colorOf(document.brand().accentHex.value_or(QString()));
    const EmblemPicker::Words words{.title = QStringLiteral("Brand Icon"),
                                    .place = rows_.placeOf(brand),
                                    .tint = accent.isValid() ? accent : QColor(defaultTint)};
    EmblemPicker* const sheet = sheets_.show(std::make_unique<EmblemPicker>(
        EmblemSubject(document, std::nullopt), words,
        EmblemPicker::Services{services_.dialogs, services_.imports, services_.thumbnails}));
    endWithBrand(*sheet, brand.brandID);
    // The listing shows the emblem.
    connect(sheet, &QObject::destroyed, &library_, &LibraryStore::scan);
  });
}

void Sidebar::editAccent(const QString& packageURL) {
  whenOpen(packageURL, [this](const BrandSummary& brand, BrandDocument& document) {
    AccentColorSheet* const sheet = sheets_.show(
        std::make_unique<AccentColorSheet>(document, library_.preferences().defaultAccentHex()));
    endWithBrand(*sheet, brand.brandID);
  });
}

void Sidebar::moveToTrash(const QString& packageURL) {
  const auto brand = brandAt(packageURL);
  if (!brand) return;
  const auto answered = [this, id = brand->brandID](Question::Answer answer) {
    const auto now = brandOf(id);
    if (now && answer == Question::Answer::Confirmed) library_.deleteBrand(*now);
  };
  Question* const question = sheets_.show(std::make_unique<Question>(
      Question::Words{
          .title = QStringLiteral("Move “") + brand->name + QStringLiteral("” to the Trash?"),
          .message =
              QStringLiteral("The brand file goes to the Trash. You can restore it from there."),
          .confirmText = QStringLiteral("Move to Trash"),
          .destructive = true},
      answered));
  endWithBrand(*question, brand->brandID);
}

void Sidebar::setDragging(const QString& brandID) {
  draggingBrandID_ = brandID;
  emit draggingChanged();
}

void Sidebar::move(const QString& brandID, const std::optional<QUuid>& before) {
  library_.moveBrand(QUuid::fromString(brandID), before);
  emit moved();
}

QVariant Sidebar::ofDragged(SidebarModel::Role role) const {
  const int row = draggingBrandID_.isEmpty() ? -1 : rows_.rowOf(draggingBrandID_);
  return row < 0 ? QVariant() : rows_.index(row).data(role);
}

void Sidebar::beginDrag(const QString& brandID) { setDragging(brandID); }

void Sidebar::dragEntered(const QString& targetID) {
  if (draggingBrandID_.isEmpty() || draggingBrandID_ == targetID) return;
  move(draggingBrandID_, QUuid::fromString(targetID));
}

void Sidebar::dragEnteredEnd() {
  if (!draggingBrandID_.isEmpty()) move(draggingBrandID_, std::nullopt);
}

void Sidebar::endDrag() { setDragging({}); }

qsizetype Sidebar::indexOf(const QString& brandID) const {
  const QList<BrandSummary>& brands = library_.brands();
  const auto found = std::ranges::find(brands, QUuid::fromString(brandID), &BrandSummary::brandID);
  return found == brands.cend() ? -1 : found - brands.cbegin();
}

void Sidebar::moveUp(const QString& brandID) {
  const qsizetype index = indexOf(brandID);
  if (index < 1) return;
  move(brandID, library_.brands().at(index - 1).brandID);
}

void Sidebar::moveDown(const QString& brandID) {
  const QList<BrandSummary>& brands = library_.brands();
  const qsizetype index = indexOf(brandID);
  if (index < 0 || index + 1 >= brands.size()) return;
  const bool toEnd = index + 2 >= brands.size();
  move(brandID, toEnd ? std::nullopt : std::optional(brands.at(index + 2).brandID));
}

}  // namespace tarnloft
