#include "shell/help/ShortcutsSheet.h"

#include <QVariantMap>

#include <array>

namespace tarnloft {
namespace {

struct Line {
  QStringView group;
  QStringView text;
  QStringView keys;
};

constexpr std::array ofViews{
    Line{u"Tiles", u"Go from tile to tile", u"Arrow Keys"},
    Line{u"Tiles", u"Do what a click does", u"Space"},
    Line{u"Tiles", u"Select one more", u"Ctrl+Space"},
    Line{u"Tiles", u"Select up to here", u"Shift+Space"},
    Line{u"Tiles", u"Select nothing", u"Esc"},
    Line{u"Tiles", u"Open its menu", u"Shift+F10"},
    Line{u"Brands", u"Move up or down", u"Alt+Up, Alt+Down"},
    Line{u"Brands", u"Rename", u"F2"},
    Line{u"Brands", u"Move to Trash", u"Del"},
    Line{u"Window", u"Open the menus", u"F10"},
    Line{u"Window", u"Go to the next control", u"Tab"},
};

}  // namespace

ShortcutsSheet::ShortcutsSheet(const QVariantList& ofMenus) {
  for (const QVariant& line : ofMenus) {
    const QVariantMap told = line.toMap();
    add(told.value(QStringLiteral("group")).toString(),
        told.value(QStringLiteral("text")).toString(),
        told.value(QStringLiteral("keys")).toString());
  }
  for (const Line& line : ofViews) {
    add(line.group.toString(), line.text.toString(), line.keys.toString());
  }
}

void ShortcutsSheet::add(const QString& group, const QString& text, const QString& keys) {
  const auto title = QStringLiteral("title");
  const auto lines = QStringLiteral("lines");
  const QVariantMap line{{QStringLiteral("text"), text}, {QStringLiteral("keys"), keys}};
  QVariantMap last = groups_.isEmpty() ? QVariantMap() : groups_.last().toMap();
  if (last.value(title) != group) {
    groups_ << QVariantMap{{title, group}, {lines, QVariantList{line}}};
    return;
  }
  last[lines] = last.value(lines).toList() << line;
  groups_.last() = last;
}

}  // namespace tarnloft
