#pragma once

#include "model/Item.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

class BrandWorkspace;
class Tile;

// What tiles of one kind show and do beyond what all do. It belongs to its tile, which always shows
// items of that kind. Main thread.
class TileFacet : public QObject {
  Q_OBJECT
  QML_ANONYMOUS

 public:
  explicit TileFacet(const Tile& tile) : tile_(tile) {}

  // The tile was clicked, with nothing held down.
  virtual void clicked() {}
  // It was clicked for the second time in a row.
  virtual void doubleClicked() {}

  // Of the kind of the tile's item.
  static std::unique_ptr<TileFacet> make(const Tile& tile);

 signals:
  // The tile shows another item, or its item has changed.
  void changed();

 protected:
  const Item& item() const;
  BrandWorkspace& workspace() const;
  template <class Payload>
  const Payload& payload() const {
    return std::get<Payload>(item().payload);
  }

 private:
  const Tile& tile_;
};

}  // namespace tarnloft
