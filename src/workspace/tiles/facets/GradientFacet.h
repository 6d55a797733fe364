#pragma once

#include "pictures/GradientView.h"
#include "workspace/tiles/facets/TileFacet.h"

namespace tarnloft {

class GradientFacet : public TileFacet {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a tile")
  Q_PROPERTY(tarnloft::GradientLook look READ look NOTIFY changed)
  // What the expanded tile tells of each stop, by location: its colour, its hex, and its place.
  Q_PROPERTY(QList<QColor> stopColors READ stopColors NOTIFY changed)
  Q_PROPERTY(QStringList stopHexes READ stopHexes NOTIFY changed)
  Q_PROPERTY(QStringList stopPlaces READ stopPlaces NOTIFY changed)
  Q_PROPERTY(QString angle READ angle NOTIFY changed)
  Q_PROPERTY(bool hasCss READ hasCss NOTIFY changed)

 public:
  using TileFacet::TileFacet;

  GradientLook look() const { return {payload<GradientPayload>().value}; }
  QList<QColor> stopColors() const;
  QStringList stopHexes() const;
  QStringList stopPlaces() const;
  QString angle() const;
  bool hasCss() const { return payload<GradientPayload>().value.hasCss(); }
  Q_INVOKABLE void copyCss();

 private:
  QList<GradientStop> sortedStops() const;
};

}  // namespace tarnloft
