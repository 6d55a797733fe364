#include "shell/help/AboutSheet.h"

#include "platform/Libraries.h"

namespace tarnloft {
namespace {

QString text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

}  // namespace

QString AboutSheet::version() { return text(programVersion); }

QVariantList AboutSheet::libraries() {
  QVariantList all;
  for (const Library& library : tarnloft::libraries) {
    all << QVariantMap{{QStringLiteral("name"), text(library.name)},
                       {QStringLiteral("version"), text(library.version)},
                       {QStringLiteral("licence"), text(library.licence)}};
  }
  return all;
}

}  // namespace tarnloft
