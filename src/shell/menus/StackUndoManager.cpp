#include "shell/menus/StackUndoManager.h"

#include <QScopedValueRollback>
#include <QUndoCommand>

#include <utility>
#include <vector>

namespace tarnloft {
namespace {

QString menuText(const QString& verb, const QString& name) {
  return name.isEmpty() ? verb : verb + QLatin1Char(' ') + name;
}

}  // namespace

// Holds what takes the present state back: the undo, and once that has run, the redo it registered.
class StackUndoManager::Step : public QUndoCommand {
 public:
  explicit Step(StackUndoManager& manager) : manager_(manager) {}

  void add(std::function<void()> inverse) { inverses_.push_back(std::move(inverse)); }

  void undo() override { run(); }
  void redo() override {
    // The stack redoes what is pushed; this was done already.
    if (std::exchange(pushed_, true)) run();
  }

 private:
  void run() {
    const auto inverses = std::exchange(inverses_, {});
    const QScopedValueRollback scope(manager_.running_, this);
    for (auto inverse = inverses.rbegin(); inverse != inverses.rend(); ++inverse) (*inverse)();
    if (!inverses_.empty()) return;
    setObsolete(true);
    if (manager_.latest_ == this) manager_.latest_ = nullptr;
  }

  StackUndoManager& manager_;
  std::vector<std::function<void()>> inverses_;
  bool pushed_ = false;
};

StackUndoManager::StackUndoManager(QObject* parent) : QObject(parent) {
  connect(&stack_, &QUndoStack::indexChanged, this, &StackUndoManager::changed);
}

void StackUndoManager::registerUndo(std::function<void()> step) {
  if (running_) {
    running_->add(std::move(step));
    latest_ = running_;
    return;
  }
  auto* const added = new Step(*this);
  added->add(std::move(step));
  latest_ = added;
  stack_.push(added);
}

void StackUndoManager::setActionName(const QString& name) {
  if (!latest_) return;
  latest_->setText(name);
  emit changed();
}

QString StackUndoManager::undoText() const {
  return menuText(QStringLiteral("Undo"), stack_.undoText());
}

QString StackUndoManager::redoText() const {
  return menuText(QStringLiteral("Redo"), stack_.redoText());
}

void StackUndoManager::clear() {
  latest_ = nullptr;
  stack_.clear();
}

}  // namespace tarnloft
