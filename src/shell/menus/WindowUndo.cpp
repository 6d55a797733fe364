#include "shell/menus/WindowUndo.h"

namespace tarnloft {
namespace {

QString menuText(const QString& verb, const QString& name) {
  return name.isEmpty() ? verb : verb + QLatin1Char(' ') + name;
}

}  // namespace

QString WindowUndo::undoText() const { return menuText(QStringLiteral("Undo"), undoActionName()); }

QString WindowUndo::redoText() const { return menuText(QStringLiteral("Redo"), redoActionName()); }

}  // namespace tarnloft
