#include "sheets/editors/GradientEditor.h"

#include "model/ById.h"
#include "pictures/HexColor.h"

namespace tarnloft {

GradientEditor::GradientEditor(ItemBinding& item) : ItemEditor(item) {
  connect(this, &ItemEditor::changed, this, &GradientEditor::follow);
  follow();
}

void GradientEditor::follow() { stops_.setStops(valueOf<GradientPayload>().stops); }

QString GradientEditor::name() const { return shown(valueOf<GradientPayload>().name); }

void GradientEditor::setAngle(double angle) {
  changeValue<GradientPayload>([&](GradientValue& value) { value.angle = angle; });
}

void GradientEditor::setName(const QString& name) {
  changeValue<GradientPayload>([&](GradientValue& value) { value.name = stored(name); });
}

void GradientEditor::pick(int row, const QColor& color) {
  changeStop(row, [&](GradientStop& stop) { stop.hex = hexOf(color); });
}

void GradientEditor::setLocation(int row, double location) {
  changeStop(row, [&](GradientStop& stop) { stop.location = location; });
}

void GradientEditor::changeStop(int row, const std::function<void(GradientStop&)>& change) {
  if (row < 0 || row >= stops_.rowCount()) return;
  changeValue<GradientPayload>([&, id = stops_.stops().at(row).id](GradientValue& value) {
    const qsizetype place = indexOf(value.stops, id);
    if (place >= 0) change(value.stops[place]);
  });
}

}  // namespace tarnloft
