#pragma once

#include "document/ItemBinding.h"

#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Edits what an item of one kind holds: each property writes through at once. Belongs to an
// ItemEditorSheet, and borrows the item from it. Main thread.
class ItemEditor : public QObject {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  explicit ItemEditor(ItemBinding& item) : item_(item) {
    connect(&item, &ItemBinding::changed, this, &ItemEditor::changed);
  }

 signals:
  void changed();

 protected:
  // A text that is empty where nothing is stored.
  static QString shown(const std::optional<QString>& text) { return text.value_or(QString()); }
  static std::optional<QString> stored(const QString& text) {
    return text.isEmpty() ? std::nullopt : std::optional(text);
  }

  template <class Payload>
  const auto& valueOf() const {
    return std::get<Payload>(item_.item().payload).value;
  }
  // Runs `change(value)` on the item in the document, if it is there.
  template <class Payload, class Change>
  void changeValue(Change&& change) {
    item_.update([&](Item& item) {
      if (auto* payload = std::get_if<Payload>(&item.payload)) change(payload->value);
    });
  }

 private:
  ItemBinding& item_;
};

}  // namespace tarnloft
