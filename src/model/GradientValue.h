#pragma once

#include <QList>
#include <QString>
#include <QUuid>

#include <optional>

namespace tarnloft {

struct GradientStop {
  QUuid id;
  QString hex;
  double location = 0;  // 0 to 1 along the gradient line

  bool operator==(const GradientStop&) const = default;
};

struct GradientValue {
  QList<GradientStop> stops;  // in the user's order, not sorted by location
  double angle = 0;           // degrees, in the sense of CSS `linear-gradient`
  std::optional<QString> name;

  bool operator==(const GradientValue&) const = default;

  // True if all its numbers, rounded, fit a 64-bit integer. A manifest can hold others.
  bool hasCss() const;

  // "linear-gradient(90deg, #FF0000 0%, #00FF00 50%)", stops by location, numbers rounded half away
  // from zero. Without `hasCss` it stops the process.
  QString cssString() const;
};

}  // namespace tarnloft
