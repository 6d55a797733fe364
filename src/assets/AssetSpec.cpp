#include "assets/AssetSpec.h"

namespace tarnloft {

QString AssetSpec::line() const {
  QStringList parts;
  for (const auto& part : {dimensions, format, fileSize}) {
    if (part) parts << *part;
  }
  return (parts + flags).join(QStringLiteral(" · "));
}

}  // namespace tarnloft
