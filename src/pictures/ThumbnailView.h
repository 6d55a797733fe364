#pragma once

#include "pictures/PictureView.h"
#include "pictures/Thumbnails.h"

namespace tarnloft {

// The small picture of a file, decoded in the background at the size of the screen's pixels. One
// that is kept shows at once; while another size of it is made, the former stays. The item's end
// withdraws its request.
// The base is named in full for the registration of QML types.
class ThumbnailView : public tarnloft::PictureView {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tarnloft::Thumbnails* thumbnails READ thumbnails WRITE setThumbnails NOTIFY
                 thumbnailsChanged REQUIRED)
  Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged)
  // Bounds the longer side, in pixels.
  Q_PROPERTY(int maxPixel READ maxPixel WRITE setMaxPixel NOTIFY maxPixelChanged)
  Q_PROPERTY(LoadState state READ loadState NOTIFY loadStateChanged)

 public:
  enum class LoadState { Loading, Loaded, Failed };
  Q_ENUM(LoadState)

  using PictureView::PictureView;

  Thumbnails* thumbnails() const { return thumbnails_; }
  void setThumbnails(Thumbnails* thumbnails);
  const QString& path() const { return path_; }
  void setPath(const QString& path);
  int maxPixel() const { return maxPixel_; }
  void setMaxPixel(int maxPixel);
  LoadState loadState() const { return state_; }

 signals:
  void thumbnailsChanged();
  void pathChanged();
  void maxPixelChanged();
  void loadStateChanged();

 protected:
  void componentComplete() override;
  void pixelSizeChanged() override { polish(); }
  void updatePolish() override;

 private:
  void restart();
  void retry();
  int wantedPixels() const;
  void receive(const std::optional<QImage>& image);
  void setState(LoadState state);

  Thumbnails* thumbnails_ = nullptr;
  QString path_;
  int maxPixel_ = 512;
  LoadState state_ = LoadState::Loading;
  int requestedPixels_ = 0;  // of the newest request; 0 before the first
  ThumbnailLoader::Request request_;
};

}  // namespace tarnloft
