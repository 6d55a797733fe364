#include "controls/sheets/SheetHost.h"

#include <QMetaMethod>

#include <algorithm>

namespace tarnloft {

SheetHost::~SheetHost() = default;

void SheetHost::add(std::unique_ptr<SheetModel> sheet, Sheets::iterator before) {
  SheetModel* const added = sheet.get();
  connect(added, &SheetModel::finished, this, [this, added] { close(added); });
  const bool isFirst = before == sheets_.begin();
  sheets_.insert(before, std::move(sheet));
  if (isFirst) emit currentChanged();
}

// A view takes a moment to go; where there is none, nobody tells of its end.
void SheetHost::close(SheetModel* sheet) {
  if (sheet == current() && hasStage()) {
    emit closing();
  } else {
    end(sheet);
  }
}

bool SheetHost::hasStage() const {
  static const QMetaMethod signal = QMetaMethod::fromSignal(&SheetHost::closing);
  return isSignalConnected(signal);
}

void SheetHost::closed(SheetModel* sheet) {
  if (sheet == current()) end(sheet);  // else another one has come in front of it
}

void SheetHost::end(SheetModel* sheet) {
  const auto found = std::ranges::find(sheets_, sheet, &std::unique_ptr<SheetModel>::get);
  if (found == sheets_.end()) return;
  const bool wasCurrent = found == sheets_.begin();
  const auto gone = std::move(*found);
  sheets_.erase(found);
  gone->disconnect(this);
  if (wasCurrent) emit currentChanged();
  gone->ended();
}

}  // namespace tarnloft
