#pragma once

#include <QString>

#include <optional>

namespace tarnloft {

struct ColorValue {
  QString hex;  // as typed, such as "#4C6FFF"; not necessarily one that parses
  std::optional<QString> name;
  std::optional<QString> spot;  // spot-colour reference, such as "PMS 021 C"

  bool operator==(const ColorValue&) const = default;
};

}  // namespace tarnloft
