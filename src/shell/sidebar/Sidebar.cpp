#include "shell/sidebar/Sidebar.h"

#include "platform/DesktopWords.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

Sidebar::Sidebar(LibraryStore& library, const LibraryServices& services, QObject* parent)
    : QObject(parent), library_(library), viewer_(services.viewer), rows_(library) {}

std::optional<BrandSummary> Sidebar::brandAt(const QString& packageURL) const {
  const QList<BrandSummary>& brands = library_.brands();
  const auto found = std::ranges::find(brands, packageURL, &BrandSummary::packageURL);
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

// A dialog waits in a loop of its own, within which the menu that asked for it would stay open, or
// go while its entry is still at work. So both come in a later turn.
void Sidebar::exportPage(const QString& packageURL) {
  const auto ask = [this, packageURL] {
    if (const auto brand = brandAt(packageURL)) library_.exportBrandPage(*brand);
  };
  QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection);
}

void Sidebar::exportFile(const QString& packageURL) {
  const auto ask = [this, packageURL] {
    if (const auto brand = brandAt(packageURL)) library_.exportBrand(*brand);
  };
  QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection);
}

void Sidebar::reveal(const QString& packageURL) { viewer_.reveal(packageURL); }

QString Sidebar::revealText() { return inDesktopWords(QStringLiteral("Reveal in Finder")); }

void Sidebar::setRenaming(const std::optional<BrandSummary>& brand) {
  renaming_ = brand;
  emit renamingChanged();
}

void Sidebar::beginRename(const QString& packageURL) {
  if (const auto brand = brandAt(packageURL)) setRenaming(brand);
}

void Sidebar::commitRename(const QString& name) {
  if (!renaming_) return;
  if (library_.selection() != renaming_->packageURL) library_.select(renaming_->packageURL);
  library_.renameSelectedBrand(name);
}

void Sidebar::endRename() { setRenaming(std::nullopt); }

void Sidebar::setPendingDelete(const std::optional<BrandSummary>& brand) {
  pendingDelete_ = brand;
  emit deletingChanged();
}

QString Sidebar::deleteTitle() const {
  if (!pendingDelete_) return {};
  return QStringLiteral("Move “") + pendingDelete_->name + QStringLiteral("” to the Trash?");
}

void Sidebar::askDelete(const QString& packageURL) {
  if (const auto brand = brandAt(packageURL)) setPendingDelete(brand);
}

void Sidebar::confirmDelete() {
  if (pendingDelete_) library_.deleteBrand(*pendingDelete_);
}

void Sidebar::endDelete() { setPendingDelete(std::nullopt); }

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
