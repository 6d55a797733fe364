#include "shell/menus/EditCommands.h"

#include "shell/window/ContentModel.h"
#include "workspace/tiles/Tile.h"
#include "workspace/tiles/TileFacts.h"

#include <algorithm>

namespace tarnloft {

EditCommands::EditCommands(const ContentModel& content, QObject* parent)
    : QObject(parent), content_(content) {}

void EditCommands::setFocused(QQuickItem* item) {
  if (focused_ == item) return;
  focused_ = item;
  emit changed();
}

// The toolkit has two kinds of editable text, without a common base.
bool EditCommands::isText() const {
  return focused_ &&
         (focused_->inherits("QQuickTextInput") || focused_->inherits("QQuickTextEdit"));
}

bool EditCommands::hasSelectedText() const {
  return isText() && !focused_->property("selectedText").toString().isEmpty();
}

bool EditCommands::isReadOnly() const { return focused_->property("readOnly").toBool(); }

Tile* EditCommands::tile() const {
  return focused_ ? focused_->property("tile").value<Tile*>() : nullptr;
}

bool EditCommands::canPaste() const { return isText() && focused_->property("canPaste").toBool(); }

bool EditCommands::canDelete() const {
  if (isText()) return canCut();
  return content_.workspace() && content_.workspace()->selected()->count() > 0;
}

bool EditCommands::canSelectAll() const {
  if (isText()) return focused_->property("length").toInt() > 0;
  const BrandWorkspace* const workspace = content_.workspace();
  if (!workspace || !workspace->document()) return false;
  return std::ranges::any_of(workspace->document()->brand().sections, [](const Section& section) {
    return !std::ranges::all_of(section.items, TileFacts::isBlock);
  });
}

bool EditCommands::copiesTile() const {
  const Tile* const focused = tile();
  return focused && focused->swatch();
}

void EditCommands::tellText(const char* verb) { QMetaObject::invokeMethod(focused_, verb); }

void EditCommands::cut() {
  if (canCut()) tellText("cut");
}

void EditCommands::copy() {
  if (hasSelectedText()) return tellText("copy");
  if (copiesTile()) tile()->click();
}

void EditCommands::paste() {
  if (canPaste()) tellText("paste");
}

void EditCommands::remove() {
  if (!canDelete()) return;
  if (!isText()) return content_.workspace()->selected()->remove();
  // Typing would do the same; a field tells of it as of the user's own change.
  const QVariant start = focused_->property("selectionStart");
  const QVariant end = focused_->property("selectionEnd");
  QMetaObject::invokeMethod(focused_, "remove", Q_ARG(int, start.toInt()), Q_ARG(int, end.toInt()));
}

void EditCommands::selectAll() {
  if (!canSelectAll()) return;
  isText() ? tellText("selectAll") : content_.workspace()->selected()->selectAll();
}

}  // namespace tarnloft
