#pragma once

#include "pictures/ClipPlayback.h"

#include <QPointer>
#include <QQuickItem>

namespace tarnloft {

// Shows the pictures of a clip that is played, in the middle of the item; nothing while there are
// none. They come in the size that they are shown in.
class ClipView : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tarnloft::ClipPlayback* playback READ playback WRITE setPlayback NOTIFY playbackChanged
                 REQUIRED)

 public:
  explicit ClipView(QQuickItem* parent = nullptr);

  ClipPlayback* playback() const { return playback_; }
  void setPlayback(ClipPlayback* playback);

 signals:
  void playbackChanged();

 protected:
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

 private:
  void renew();
  void tellRoom();
  qreal pixelRatio() const;

  QPointer<ClipPlayback> playback_;
  bool isStale_ = true;  // what is on screen isn't the present picture in the present place
};

}  // namespace tarnloft
