#include "sheets/AccentColorSheet.h"

#include "pictures/HexColor.h"

namespace tarnloft {

AccentColorSheet::AccentColorSheet(BrandDocument& document, const QString& defaultHex)
    : document_(&document), defaultHex_(defaultHex) {
  connect(&document, &BrandDocument::brandChanged, this, &AccentColorSheet::follow);
  connect(&document, &QObject::destroyed, this, &SheetModel::finished);
  follow();
}

void AccentColorSheet::follow() {
  const Brand& brand = document_->brand();
  if (accentHex_ == brand.accentHex && accentHexDark_ == brand.accentHexDark) return;
  accentHex_ = brand.accentHex;
  accentHexDark_ = brand.accentHexDark;
  emit changed();
}

QColor AccentColorSheet::accent() const { return shownColor(accentHex_.value_or(defaultHex_)); }

QColor AccentColorSheet::darkAccent() const {
  return shownColor(accentHexDark_.value_or(accentHex_.value_or(defaultHex_)));
}

void AccentColorSheet::setSeparateDark(bool isSeparate) {
  if (isSeparate == hasSeparateDark()) return;
  edit([&](Brand& brand) {
    brand.accentHexDark =
        isSeparate ? std::optional(brand.accentHex.value_or(defaultHex_)) : std::nullopt;
  });
}

void AccentColorSheet::pick(const QColor& color) {
  edit([&](Brand& brand) { brand.accentHex = hexOf(color); });
}

void AccentColorSheet::pickDark(const QColor& color) {
  edit([&](Brand& brand) { brand.accentHexDark = hexOf(color); });
}

void AccentColorSheet::useDefault() {
  edit([](Brand& brand) {
    brand.accentHex.reset();
    brand.accentHexDark.reset();
  });
}

void AccentColorSheet::edit(const std::function<void(Brand&)>& change) {
  if (document_) document_->edit(change);
}

}  // namespace tarnloft
