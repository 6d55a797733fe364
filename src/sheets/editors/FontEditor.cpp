#include "sheets/editors/FontEditor.h"

#include <QFontDatabase>

namespace tarnloft {

QString FontEditor::family() const { return valueOf<FontPayload>().family; }

QString FontEditor::weight() const { return shown(valueOf<FontPayload>().weight); }

QString FontEditor::sample() const { return shown(valueOf<FontPayload>().sampleText); }

void FontEditor::setFamily(const QString& family) {
  changeValue<FontPayload>([&](FontValue& value) { value.family = family; });
}

void FontEditor::setWeight(const QString& weight) {
  changeValue<FontPayload>([&](FontValue& value) { value.weight = stored(weight); });
}

void FontEditor::setSample(const QString& sample) {
  changeValue<FontPayload>([&](FontValue& value) { value.sampleText = stored(sample); });
}

QStringList FontEditor::families(const QString& beginning) const {
  QStringList first, others;
  const auto all = QFontDatabase::families();
  for (const QString& family : all) {
    if (QFontDatabase::isPrivateFamily(family)) continue;
    if (family.startsWith(beginning, Qt::CaseInsensitive)) {
      first << family;
    } else if (family.contains(QLatin1Char(' ') + beginning, Qt::CaseInsensitive)) {
      others << family;
    }
  }
  return first + others;
}

}  // namespace tarnloft
