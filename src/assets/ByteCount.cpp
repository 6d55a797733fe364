#include "assets/ByteCount.h"

#include <array>

namespace tarnloft {
namespace {

struct Unit {
  qint64 bytes;
  qint64 step;  // the smallest difference that is shown, in bytes
  const char* name;
};

constexpr qint64 kilo = 1000, mega = kilo * 1000, giga = mega * 1000, tera = giga * 1000,
                 peta = tera * 1000, exa = peta * 1000;

constexpr std::array units{
    Unit{kilo, kilo, "KB"},       Unit{mega, mega / 10, "MB"},  Unit{giga, giga / 100, "GB"},
    Unit{tera, tera / 100, "TB"}, Unit{peta, peta / 100, "PB"}, Unit{exa, exa / 100, "EB"},
};

// To nearest, halves up.
qint64 stepsOf(qint64 bytes, const Unit& unit) {
  return bytes / unit.step + (bytes % unit.step >= unit.step / 2 ? 1 : 0);
}

QString decimalText(qint64 steps, const Unit& unit) {
  const qint64 stepsPerUnit = unit.bytes / unit.step;
  QString text = QString::number(steps / stepsPerUnit);
  if (const qint64 rest = steps % stepsPerUnit) {
    QString digits = QString::number(stepsPerUnit + rest).sliced(1);  // with its leading zeros
    while (digits.endsWith(QLatin1Char('0'))) digits.chop(1);
    text += QLatin1Char('.') + digits;
  }
  return text;
}

}  // namespace

QString byteCountText(qint64 bytes) {
  if (bytes == 0) return QStringLiteral("Zero KB");
  if (bytes == 1) return QStringLiteral("1 byte");
  if (bytes < kilo) return QStringLiteral("%1 bytes").arg(bytes);
  // A count that rounds up to 1000 of a unit is one of the next.
  size_t i = 0;
  while (i + 1 < units.size() &&
         stepsOf(bytes, units[i]) >= kilo * units[i].bytes / units[i].step) {
    ++i;
  }
  return decimalText(stepsOf(bytes, units[i]), units[i]) + QLatin1Char(' ') +
         QLatin1String(units[i].name);
}

}  // namespace tarnloft
