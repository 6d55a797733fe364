#include "controls/sheets/NameSheet.h"

#include <utility>

namespace tarnloft {

void NameSheet::setText(const QString& text) {
  if (std::exchange(text_, text) != text) emit textChanged();
}

void NameSheet::confirm() {
  if (!isConfirmable()) return;
  emit finished();
  named_(text_.trimmed());
}

}  // namespace tarnloft
