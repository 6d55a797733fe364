#include "controls/sheets/SheetModel.h"

namespace tarnloft {

QUrl SheetModel::viewURL(const char* module, const char* name) {
  return QUrl(QStringLiteral("qrc:/qt-project.org/imports/TarnLoft/%1/%2.qml")
                  .arg(QLatin1String(module), QLatin1String(name)));
}

}  // namespace tarnloft
