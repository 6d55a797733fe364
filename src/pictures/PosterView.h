#pragma once

#include "pictures/PictureView.h"
#include "pictures/Posters.h"

namespace tarnloft {

// The picture that stands for a clip; nothing while there is none. The item's end withdraws its
// request. The base is named in full for the registration of QML types.
class PosterView : public tarnloft::PictureView {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(
      tarnloft::Posters* posters READ posters WRITE setPosters NOTIFY postersChanged REQUIRED)
  Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged REQUIRED)

 public:
  using PictureView::PictureView;

  Posters* posters() const { return posters_; }
  void setPosters(Posters* posters);
  const QString& path() const { return path_; }
  void setPath(const QString& path);

 signals:
  void postersChanged();
  void pathChanged();

 protected:
  void componentComplete() override;

 private:
  void load();

  Posters* posters_ = nullptr;
  QString path_;
  Posters::Request request_;
};

}  // namespace tarnloft
