#pragma once

#include <QString>
#include <QUuid>

namespace tarnloft {

// A brand as work that takes long remembers it: its package may be renamed meanwhile.
struct BrandPlace {
  QString packageURL;
  QUuid brand;

  bool operator==(const BrandPlace&) const = default;
};

}  // namespace tarnloft
