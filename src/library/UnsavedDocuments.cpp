#include "library/UnsavedDocuments.h"

#include <algorithm>

namespace tarnloft {

void UnsavedDocuments::keep(std::unique_ptr<BrandDocument> document) {
  document->saveNow();
  if (!document->hasUnsavedChanges()) return;
  // Not at once: it still works when it tells of its end.
  connect(document.get(), &BrandDocument::saveEnded, this, &UnsavedDocuments::release,
          Qt::QueuedConnection);
  connect(document.get(), &BrandDocument::saveProblemChanged, this, &UnsavedDocuments::changed);
  documents_.push_back(std::move(document));
  emit changed();
}

std::unique_ptr<BrandDocument> UnsavedDocuments::take(const QString& packageURL) {
  const auto found = std::ranges::find(documents_, packageURL, &BrandDocument::packageURL);
  if (found == documents_.end()) return nullptr;
  auto document = std::move(*found);
  documents_.erase(found);
  document->disconnect(this);
  emit changed();
  return document;
}

BrandDocument* UnsavedDocuments::at(const QString& packageURL) const {
  const auto found = std::ranges::find(documents_, packageURL, &BrandDocument::packageURL);
  return found == documents_.end() ? nullptr : found->get();
}

std::vector<BrandDocument*> UnsavedDocuments::all() const {
  std::vector<BrandDocument*> all;
  for (const auto& document : documents_) all.push_back(document.get());
  return all;
}

void UnsavedDocuments::release() {
  const auto isSaved = [](const auto& document) { return !document->hasUnsavedChanges(); };
  if (std::erase_if(documents_, isSaved) > 0) emit changed();
}

}  // namespace tarnloft
