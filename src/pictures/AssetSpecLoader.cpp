#include "pictures/AssetSpecLoader.h"

#include <QPointer>

#include <utility>

namespace tarnloft {
AssetSpecLoader::AssetSpecLoader(QObject* parent) : QObject(parent) {
  connect(this, &AssetSpecLoader::wantedChanged, this, &AssetSpecLoader::load);
}

AssetSpecLoader::~AssetSpecLoader() {
  if (task_) task_->drop();
}

void AssetSpecLoader::componentComplete() {
  isComplete_ = true;
  load();
}

void AssetSpecLoader::load() {
  if (task_) task_->drop();
  setLine({});
  if (!isComplete_ || !specs_ || path_.isEmpty()) return;
  task_ = specs_->read(kind_, path_,
                       [self = QPointer(this), request = ++request_](const AssetSpec& spec) {
                         if (self && self->request_ == request) self->setLine(spec.line());
                       });
}

void AssetSpecLoader::setLine(const QString& line) {
  if (std::exchange(line_, line) != line) emit lineChanged();
}

}  // namespace tarnloft
