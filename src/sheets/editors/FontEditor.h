#pragma once

#include "sheets/editors/ItemEditor.h"

#include <QStringList>

namespace tarnloft {

class FontEditor : public tarnloft::ItemEditor {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a sheet")
  Q_PROPERTY(QString family READ family WRITE setFamily NOTIFY changed)
  Q_PROPERTY(QString weight READ weight WRITE setWeight NOTIFY changed)  // empty for none
  Q_PROPERTY(QString sample READ sample WRITE setSample NOTIFY changed)

 public:
  using ItemEditor::ItemEditor;

  QString family() const;
  QString weight() const;
  QString sample() const;
  void setFamily(const QString& family);
  void setWeight(const QString& weight);
  void setSample(const QString& sample);

  // The families that can be drawn, installed or the brand's own, whose name or one of its words
  // begins so; those that begin so first.
  Q_INVOKABLE QStringList families(const QString& beginning) const;
};

}  // namespace tarnloft
