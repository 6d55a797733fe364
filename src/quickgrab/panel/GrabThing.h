#pragma once

#include "pictures/Backdrop.h"
#include "pictures/GradientView.h"
#include "quickgrab/panel/PanelLayout.h"

#include <QColor>

namespace tarnloft {

// A thing of the panel's list as its view shows it.
class GrabThing {
  Q_GADGET
  QML_VALUE_TYPE(grabThing)
  Q_PROPERTY(int kind MEMBER kind)    // GrabKind
  Q_PROPERTY(int place MEMBER place)  // in the layout
  Q_PROPERTY(QRect room MEMBER room)  // in points, in the list
  Q_PROPERTY(QString name MEMBER name)
  Q_PROPERTY(QString detail MEMBER detail)  // a font's weight, a snippet; what a header counts
  Q_PROPERTY(QString help MEMBER help)
  Q_PROPERTY(QColor color MEMBER color)
  Q_PROPERTY(tarnloft::GradientLook gradient MEMBER gradient)
  Q_PROPERTY(QString source MEMBER source)  // a picture's path, a font's family
  Q_PROPERTY(int backdrop MEMBER backdrop)  // Backdrop

 public:
  QUuid id;  // told apart from those of the list's other things
  int kind = GrabKind::BlockHeader;
  int place = 0;
  QRect room;
  QString name;
  QString detail;
  QString help;
  QColor color;
  GradientLook gradient;
  QString source;
  int backdrop = Backdrop::Default;

  bool operator==(const GrabThing&) const = default;
};

// A brand of the switcher's menu.
class BrandChoice {
  Q_GADGET
  QML_VALUE_TYPE(brandChoice)
  Q_PROPERTY(QString name MEMBER name)
  Q_PROPERTY(QString packageURL MEMBER packageURL)
  Q_PROPERTY(bool selected MEMBER selected)

 public:
  QString name;
  QString packageURL;
  bool selected = false;

  bool operator==(const BrandChoice&) const = default;
};

}  // namespace tarnloft
