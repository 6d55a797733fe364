#include "platform/desktop/system/IniPreferences.h"

#include <QStandardPaths>

namespace tarnloft {

IniPreferences::IniPreferences()
    : IniPreferences(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                     QStringLiteral("/tarnloft.ini")) {}

IniPreferences::IniPreferences(const QString& path) : settings_(path, QSettings::IniFormat) {}

std::optional<QString> IniPreferences::text(const QString& key) const {
  const QVariant value = settings_.value(key);
  // A text with commas in a file edited by hand reads as a list.
  if (value.metaType().id() != QMetaType::QString) return std::nullopt;
  return value.toString();
}

std::optional<double> IniPreferences::number(const QString& key) const {
  bool readable = false;
  const double value = settings_.value(key).toDouble(&readable);
  return readable ? std::optional(value) : std::nullopt;
}

QStringList IniPreferences::texts(const QString& key) const {
  return settings_.value(key).toStringList();
}

void IniPreferences::setText(const QString& key, const QString& value) {
  settings_.setValue(key, value);
}

void IniPreferences::setNumber(const QString& key, double value) { settings_.setValue(key, value); }

void IniPreferences::setTexts(const QString& key, const QStringList& values) {
  settings_.setValue(key, values);
}

void IniPreferences::remove(const QString& key) { settings_.remove(key); }

}  // namespace tarnloft
