#pragma once

#include "document/BrandDocument.h"

#include <QPointer>

namespace tarnloft {

// One item of an open brand, for what shows or edits it: found by its id wherever it stands. Main
// thread.
class ItemBinding : public QObject {
  Q_OBJECT

 public:
  // The item stands in the document's brand.
  ItemBinding(BrandDocument& document, const QUuid& item);

  // Null once it has gone.
  BrandDocument* document() const { return document_; }
  // As it is now, or was last.
  const Item& item() const { return item_; }
  // Changes it in the document, without an undo step. Nothing happens once it has gone.
  void update(const std::function<void(Item&)>& change);

 signals:
  void changed();
  // It left the brand for good, told in a later turn of the event loop, or the document went.
  void gone();

 private:
  void follow();
  void endIfGone();

  QPointer<BrandDocument> document_;
  Item item_;
};

}  // namespace tarnloft
