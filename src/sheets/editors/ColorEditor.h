#pragma once

#include "sheets/editors/ItemEditor.h"

#include <QColor>

#include <functional>

namespace tarnloft {

class ColorEditor : public tarnloft::ItemEditor {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a sheet")
  Q_PROPERTY(QColor color READ color NOTIFY changed)               // gray where the hex is none
  Q_PROPERTY(QString hex READ hex WRITE setHex NOTIFY changed)     // as typed, whatever it is
  Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)  // empty for none
  Q_PROPERTY(QString spot READ spot WRITE setSpot NOTIFY changed)

 public:
  // Lets the user pick a colour of the screen, given as its hex.
  using Sampler = std::function<void(std::function<void(const QString& hex)> picked)>;

  ColorEditor(ItemBinding& item, Sampler sampler)
      : ItemEditor(item), sampler_(std::move(sampler)) {}

  QColor color() const;
  QString hex() const;
  QString name() const;
  QString spot() const;
  void setHex(const QString& hex);
  void setName(const QString& name);
  void setSpot(const QString& spot);

  Q_INVOKABLE void pick(const QColor& color);
  Q_INVOKABLE void sample();

 private:
  const Sampler sampler_;
};

}  // namespace tarnloft
