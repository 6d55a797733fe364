#include "platform/desktop/system/IniPreferences.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace tarnloft {
namespace {

constexpr int mostKept = 100;  // copies of damaged files

bool haveSameContent(const QString& a, const QString& b) {
  QFile first(a), second(b);
  return first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly) &&
         first.size() == second.size() && first.readAll() == second.readAll();
}

// Beside the file, where nothing stands yet, or a copy of it.
QString placeForDamaged(const QString& path) {
  const QString place = path + QStringLiteral(".damaged");
  QString numbered = place;
  for (int i = 2; QFileInfo::exists(numbered) && i <= mostKept; ++i) {
    if (haveSameContent(path, numbered)) break;
    numbered = place + QLatin1Char('-') + QString::number(i);
  }
  return numbered;
}

// A pipe in the file's place would be waited for, and a folder can't be written to.
QString withoutObstacle(const QString& path, SystemLog& log) {
  const QFileInfo there(path);
  if (!there.exists() || there.isFile()) return path;
  const QString place = path + QStringLiteral(".displaced");
  if (!QFile::rename(path, place)) return QStringLiteral("/dev/null") + path;  // which is nowhere
  log.write(QStringLiteral("no file of preferences, moved to ") + place);
  return path;
}

void keepDamaged(const QString& path, SystemLog& log) {
  const QString place = placeForDamaged(path);
  const bool isKept = QFileInfo::exists(place) || QFile::copy(path, place);
  log.write(QStringLiteral("damaged preferences, ") +
            (isKept ? QStringLiteral("kept as ") + place
                    : QStringLiteral("which can't be copied: ") + path));
}

}  // namespace

IniPreferences::IniPreferences(SystemLog& log)
    : IniPreferences(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                         QStringLiteral("/tarnloft.ini"),
                     log) {}

IniPreferences::IniPreferences(const QString& path, SystemLog& log)
    : log_(log), settings_(withoutObstacle(path, log), QSettings::IniFormat) {
  (void)settings_.allKeys();  // else it is read piece by piece, when it is asked for
  if (settings_.status() == QSettings::FormatError) keepDamaged(path, log);
  tellUnwritable();
}

IniPreferences::~IniPreferences() {
  settings_.sync();
  tellUnwritable();
}

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

void IniPreferences::setText(const QString& key, const QString& value) { set(key, value); }

void IniPreferences::setNumber(const QString& key, double value) { set(key, value); }

void IniPreferences::setTexts(const QString& key, const QStringList& values) { set(key, values); }

void IniPreferences::remove(const QString& key) { settings_.remove(key); }

void IniPreferences::set(const QString& key, const QVariant& value) {
  settings_.setValue(key, value);
  tellUnwritable();
}

// Changes are written on a later turn of the event loop, so this is of the one before.
void IniPreferences::tellUnwritable() {
  if (settings_.status() != QSettings::AccessError || std::exchange(isUnwritable_, true)) return;
  log_.write(QStringLiteral("preferences can't be read or written: ") + settings_.fileName());
}

}  // namespace tarnloft
