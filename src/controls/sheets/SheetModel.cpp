#include "controls/sheets/SheetModel.h"

namespace tarnloft {

QString SheetModel::viewURL(const char* module, const char* name) {
  return QStringLiteral("qrc:/qt-project.org/imports/TarnLoft/%1/%2.qml")
      .arg(QLatin1String(module), QLatin1String(name));
}

}  // namespace tarnloft
