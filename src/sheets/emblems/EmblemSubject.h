#pragma once

#include "document/BrandDocument.h"

#include <QPointer>

#include <optional>

namespace tarnloft {

// The emblem of an open brand, or of one of its sections. Main thread.
class EmblemSubject {
 public:
  // `section` is null for the brand's own.
  EmblemSubject(BrandDocument& document, const std::optional<QUuid>& section)
      : document_(&document), section_(section) {}

  // Null once it has gone.
  BrandDocument* document() const { return document_; }
  // False once the section, or the whole brand, has gone.
  bool exists() const;
  // None where there is none, or nothing that could have one.
  std::optional<Emblem> emblem() const;
  // Nothing happens once it has gone. Not undoable.
  void store(const std::optional<Emblem>& emblem) const;

 private:
  QPointer<BrandDocument> document_;
  std::optional<QUuid> section_;
};

}  // namespace tarnloft
