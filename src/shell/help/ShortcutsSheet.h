#pragma once

#include "controls/sheets/SheetModel.h"

#include <QVariantList>

namespace tarnloft {

// Lists the window's keys: those of its menus, which its view hands over, and those that what has
// the keyboard takes by itself.
class ShortcutsSheet : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the window's model")
  // Maps of `title` and `lines`, which are maps of `text` and `keys`.
  Q_PROPERTY(QVariantList groups READ groups CONSTANT)

 public:
  // Each is a map of `group`, `text` and `keys`; those of a group stand together.
  explicit ShortcutsSheet(const QVariantList& ofMenus);

  const QVariantList& groups() const { return groups_; }

  QString view() const override { return viewURL("Shell", "ShortcutsSheetView"); }

 private:
  void add(const QString& group, const QString& text, const QString& keys);

  QVariantList groups_;
};

}  // namespace tarnloft
