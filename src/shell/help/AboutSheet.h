#pragma once

#include "controls/sheets/SheetModel.h"

#include <QVariantList>

namespace tarnloft {

// Tells what the program is, and whose work is in it.
class AboutSheet : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the window's model")
  Q_PROPERTY(QString version READ version CONSTANT)
  // Maps of `name`, `version` and `licence`.
  Q_PROPERTY(QVariantList libraries READ libraries CONSTANT)

 public:
  static QString version();
  static QVariantList libraries();

  QString view() const override { return viewURL("Shell", "AboutSheetView"); }
};

}  // namespace tarnloft
