#include "platform/desktop/system/AutostartEntry.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

namespace tarnloft {
namespace {

// A word of an entry's command, by its rules: in quotes, twice escaped.
QString quoted(QString word) {
  for (const char16_t special : {u'\\', u'"', u'`', u'$'})
    word.replace(QChar(special), QStringLiteral("\\") + QChar(special));
  word.replace(QLatin1Char('%'), QLatin1String("%%"));
  return QLatin1Char('"') + word.replace(QLatin1Char('\\'), QLatin1String("\\\\")) +
         QLatin1Char('"');
}

}  // namespace

AutostartEntry::AutostartEntry(const QString& folder, const QString& program)
    : path_(folder + QStringLiteral("/tarnloft.desktop")), program_(program) {}

QString AutostartEntry::userFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/autostart");
}

bool AutostartEntry::isOn() const {
  QFile file(path_);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QList<QByteArray> lines = file.readAll().split('\n');
  return !lines.contains("Hidden=true") && !lines.contains("X-GNOME-Autostart-enabled=false");
}

Result<void> AutostartEntry::setOn(bool isOn) {
  QFile old(path_);
  if (!isOn) {
    if (!old.exists() || old.remove()) return {};
    return failure(ErrorKind::io, old.errorString());
  }
  const QString text =
      QStringLiteral(
          "[Desktop Entry]\nType=Application\nName=Tarn Loft\n"
          "Exec=env %1=%2 %3\nIcon=com.quillmoor.tarnloft\nX-GNOME-Autostart-enabled=true\n")
          .arg(QLatin1String(startVariable), QLatin1String(hidden), quoted(program_));
  QSaveFile file(path_);
  QDir().mkpath(QFileInfo(path_).path());
  if (!file.open(QIODevice::WriteOnly)) return failure(ErrorKind::io, file.errorString());
  file.write(text.toUtf8());
  if (!file.commit()) return failure(ErrorKind::io, file.errorString());
  return {};
}

}  // namespace tarnloft
