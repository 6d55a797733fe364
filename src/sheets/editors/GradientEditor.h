#pragma once

#include "pictures/GradientView.h"
#include "sheets/editors/GradientStopList.h"
#include "sheets/editors/ItemEditor.h"

namespace tarnloft {

class GradientEditor : public tarnloft::ItemEditor {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a sheet")
  Q_PROPERTY(tarnloft::GradientLook look READ look NOTIFY changed)
  Q_PROPERTY(tarnloft::GradientStopList* stops READ stops CONSTANT)
  Q_PROPERTY(double angle READ angle WRITE setAngle NOTIFY changed)  // degrees
  Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)    // empty for none

 public:
  explicit GradientEditor(ItemBinding& item);

  GradientLook look() const { return {valueOf<GradientPayload>()}; }
  GradientStopList* stops() { return &stops_; }
  double angle() const { return valueOf<GradientPayload>().angle; }
  QString name() const;
  void setAngle(double angle);
  void setName(const QString& name);

  // Of the stop in that row.
  Q_INVOKABLE void pick(int row, const QColor& color);
  Q_INVOKABLE void setLocation(int row, double location);  // 0 to 1

 private:
  void follow();
  void changeStop(int row, const std::function<void(GradientStop&)>& change);

  GradientStopList stops_;
};

}  // namespace tarnloft
