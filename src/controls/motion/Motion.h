#pragma once

#include "controls/motion/Spring.h"

#include <QEasingCurve>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <deque>

class QJSEngine;
class QQmlEngine;

namespace tarnloft {

// How things move, for QML: `Motion.easing(0.5, 0.85)` with `Motion.duration(0.5, 0.85)`, which
// SpringNumber takes for its users.
class Motion : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  // Set where the user asks for less movement: durations become 0 and things jump.
  Q_PROPERTY(bool reduced READ isReduced WRITE setReduced NOTIFY reducedChanged)

 public:
  // The engine's one instance, made at the first call and owned by the engine.
  static Motion& of(QQmlEngine& engine);

  static Motion* create(QQmlEngine* engine, QJSEngine* scripts);

  bool isReduced() const { return reduced_; }
  void setReduced(bool reduced);

  // Milliseconds for a plain animation, 0 where movement is reduced.
  Q_INVOKABLE int time(int milliseconds) const { return reduced_ ? 0 : milliseconds; }

  Q_INVOKABLE int duration(double response, double dampingFraction) const;
  Q_INVOKABLE QEasingCurve easing(double response, double dampingFraction) const;

 signals:
  void reducedChanged();

 private:
  explicit Motion(QObject* parent) : QObject(parent) {}

  // Of a spring that views use: there are few, and each takes a thousand steps to find.
  struct Curve {
    Spring spring;
    int milliseconds;
    QEasingCurve easing;
  };
  const Curve& curve(const Spring& spring) const;

  bool reduced_ = false;
  mutable std::deque<Curve> curves_;
};

}  // namespace tarnloft
