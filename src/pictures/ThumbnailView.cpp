#include "pictures/ThumbnailView.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnloft {

void ThumbnailView::setThumbnails(Thumbnails* thumbnails) {
  if (thumbnails_ == thumbnails) return;
  if (thumbnails_) thumbnails_->disconnect(this);
  thumbnails_ = thumbnails;
  if (thumbnails_) connect(thumbnails_, &Thumbnails::retried, this, &ThumbnailView::retry);
  emit thumbnailsChanged();
  restart();
}

void ThumbnailView::setPath(const QString& path) {
  if (path_ == path) return;
  path_ = path;
  emit pathChanged();
  restart();
}

void ThumbnailView::setMaxPixel(int maxPixel) {
  if (std::exchange(maxPixel_, maxPixel) == maxPixel) return;
  emit maxPixelChanged();
  polish();
}

void ThumbnailView::componentComplete() {
  PictureView::componentComplete();
  polish();
}

// Another file: what shows is no picture of it.
void ThumbnailView::restart() {
  request_.cancel();
  requestedPixels_ = 0;
  if (hasPicture()) setPicture({});
  setState(LoadState::Loading);
  polish();
}

void ThumbnailView::retry() {
  if (state_ == LoadState::Failed) restart();
}

// Sizes come in steps, so that a window that is being resized doesn't decode at each of them; what
// is left is done by a good filter when the picture is cut.
int ThumbnailView::wantedPixels() const {
  constexpr int step = 64;
  const QSize size = pixelSize();
  const int longest = std::max(size.width(), size.height());
  return std::min((longest + step - 1) / step * step, maxPixel_);
}

// Once a frame at most, when the size is settled.
void ThumbnailView::updatePolish() {
  const int wanted = wantedPixels();
  if (!thumbnails_ || path_.isEmpty()) return;
  if (wanted == 0 || wanted == requestedPixels_) return;
  requestedPixels_ = wanted;
  request_ = thumbnails_->loader().thumbnail(
      path_, wanted, [this](const std::optional<QImage>& image) { receive(image); });
}

void ThumbnailView::receive(const std::optional<QImage>& image) {
  setPicture(image.value_or(QImage()));
  setState(image ? LoadState::Loaded : LoadState::Failed);
}

void ThumbnailView::setState(LoadState state) {
  if (std::exchange(state_, state) != state) emit loadStateChanged();
}

}  // namespace tarnloft
