#include "sheets/emblems/EmblemSubject.h"

#include "model/ById.h"

namespace tarnloft {

bool EmblemSubject::exists() const {
  return document_ && (!section_ || indexOf(document_->brand().sections, *section_) >= 0);
}

std::optional<Emblem> EmblemSubject::emblem() const {
  if (!exists()) return std::nullopt;
  const Brand& brand = document_->brand();
  return section_ ? brand.sections.at(indexOf(brand.sections, *section_)).emblem : brand.emblem;
}

void EmblemSubject::store(const std::optional<Emblem>& emblem) const {
  if (!document_) return;
  if (section_) {
    document_->editSection(*section_, [&](Section& section) { section.emblem = emblem; });
  } else {
    document_->edit([&](Brand& brand) { brand.emblem = emblem; });
  }
}

}  // namespace tarnloft
