#pragma once

#include "model/GradientValue.h"

#include <QLinearGradient>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// A gradient on its way through QML.
struct GradientLook {
  Q_GADGET
  QML_VALUE_TYPE(gradientLook)

 public:
  GradientValue value;

  bool operator==(const GradientLook&) const = default;
};

// The gradient in a rectangle of that size: stops by location, those that don't parse left out; an
// angle of 0 runs to the right and one of 90 down, in the rectangle's own proportions. Transparent
// without stops.
QLinearGradient linearGradient(const GradientValue& gradient, const QSizeF& size);

// A rectangle with round corners, filled with a gradient.
class GradientView : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(
      tarnloft::GradientLook gradient READ gradient WRITE setGradient NOTIFY changed REQUIRED)
  Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY changed)  // points

 public:
  explicit GradientView(QQuickItem* parent = nullptr);

  const GradientLook& gradient() const { return gradient_; }
  void setGradient(const GradientLook& gradient);
  qreal radius() const { return radius_; }
  void setRadius(qreal radius);

  void paint(QPainter* painter) override;

 signals:
  void changed();

 private:
  GradientLook gradient_;
  qreal radius_ = 0;
};

}  // namespace tarnloft
