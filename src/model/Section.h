#pragma once

#include "model/Emblem.h"
#include "model/Item.h"
#include "model/SharedList.h"

namespace tarnloft {

struct Section {
  QUuid id;  // unique within the brand
  QString name;
  std::optional<Emblem> emblem;
  SharedList<Item> items;  // in display order

  bool operator==(const Section&) const = default;

  // An empty section of that name with a new id and no emblem.
  static Section create(const QString& name) {
    return {QUuid::createUuid(), name, std::nullopt, {}};
  }
};

}  // namespace tarnloft
