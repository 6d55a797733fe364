#include "pictures/PosterView.h"

#include <utility>

namespace tarnloft {

void PosterView::setPosters(Posters* posters) {
  if (std::exchange(posters_, posters) == posters) return;
  emit postersChanged();
  load();
}

void PosterView::setPath(const QString& path) {
  if (path_ == path) return;
  path_ = path;
  emit pathChanged();
  load();
}

void PosterView::componentComplete() {
  PictureView::componentComplete();
  load();
}

void PosterView::load() {
  if (!isComponentComplete()) return;
  request_.cancel();
  setPicture({});
  if (!posters_ || path_.isEmpty()) return;
  request_ = posters_->poster(path_, [this](const std::optional<QImage>& poster) {
    setPicture(poster.value_or(QImage()));
  });
}

}  // namespace tarnloft
