#include "sheets/editors/ColorEditor.h"

#include "pictures/HexColor.h"

#include <QPointer>

namespace tarnloft {

QColor ColorEditor::color() const { return shownColor(hex()); }

QString ColorEditor::hex() const { return valueOf<ColorPayload>().hex; }

QString ColorEditor::name() const { return shown(valueOf<ColorPayload>().name); }

QString ColorEditor::spot() const { return shown(valueOf<ColorPayload>().spot); }

void ColorEditor::setHex(const QString& hex) {
  changeValue<ColorPayload>([&](ColorValue& value) { value.hex = hex; });
}

void ColorEditor::setName(const QString& name) {
  changeValue<ColorPayload>([&](ColorValue& value) { value.name = stored(name); });
}

void ColorEditor::setSpot(const QString& spot) {
  changeValue<ColorPayload>([&](ColorValue& value) { value.spot = stored(spot); });
}

void ColorEditor::pick(const QColor& color) { setHex(hexOf(color)); }

void ColorEditor::sample() {
  sampler_([editor = QPointer(this)](const QString& hex) {
    if (editor) editor->setHex(hex);
  });
}

}  // namespace tarnloft
