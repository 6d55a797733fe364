#pragma once

#include <QString>

#include <optional>

namespace tarnloft {

struct CodeValue {
  QString language;
  QString snippet;
  std::optional<QString> name;

  bool operator==(const CodeValue&) const = default;
};

}  // namespace tarnloft
