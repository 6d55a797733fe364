#pragma once

#include <QList>
#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace tarnloft {

// An entry of a menu whose entries depend on what it was opened on, for QML.
struct MenuEntry {
  Q_GADGET
  QML_VALUE_TYPE(menuEntry)
  Q_PROPERTY(QString text MEMBER text)  // empty for a divider
  Q_PROPERTY(bool enabled MEMBER isEnabled)
  Q_PROPERTY(bool destructive MEMBER isDestructive)
  Q_PROPERTY(bool checkable MEMBER isCheckable)
  Q_PROPERTY(bool checked MEMBER isChecked)
  // A line that tells and can't be chosen; a title of what follows if `prominent`.
  Q_PROPERTY(bool telling READ isTelling)
  Q_PROPERTY(bool prominent MEMBER isTitle)
  Q_PROPERTY(QVariantList entries READ entryList)  // of a submenu; empty for none

 public:
  QString text = {};
  std::function<void()> run = {};  // none for a line that tells
  bool isEnabled = true;
  bool isDestructive = false;
  bool isCheckable = false;
  bool isChecked = false;
  bool isTitle = false;
  QList<MenuEntry> entries = {};

  bool isTelling() const { return !run && entries.isEmpty(); }
  QVariantList entryList() const {
    QVariantList list;
    for (const MenuEntry& entry : entries) list << QVariant::fromValue(entry);
    return list;
  }
  Q_INVOKABLE void trigger() const {
    if (run) run();
  }
};

}  // namespace tarnloft
