#pragma once

#include "platform/ColorSampler.h"

#include <QDBusMessage>
#include <QObject>

namespace tarnloft {

// Lets the desktop's portal pick the colour, the only way where windows can't see the screen.
class PortalColorPicker : public QObject {
  Q_OBJECT

 public:
  using Done = std::function<void(std::optional<SampledColor>)>;

  // Exactly one of the two is called, later: `unavailable` if there is no portal that can pick,
  // with what the bus tells of that.
  void pick(Done done, std::function<void(const QString& reason)> unavailable);

 private slots:
  void answered(const QDBusMessage& message);

 private:
  Done done_;
};

}  // namespace tarnloft
