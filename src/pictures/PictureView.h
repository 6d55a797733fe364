#pragma once

#include <QImage>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Draws a picture in a rectangle, cut round in C++ so that every scene graph draws it, one pixel of
// the cut to one of the screen. What it shows is a subclass's business.
class PictureView : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Shows nothing by itself")
  Q_PROPERTY(FillMode fillMode READ fillMode WRITE setFillMode NOTIFY fillModeChanged)
  Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged)  // points

 public:
  enum FillMode { Fit, Fill };  // show all of the picture, or cover the rectangle with it
  Q_ENUM(FillMode)

  explicit PictureView(QQuickItem* parent = nullptr);

  FillMode fillMode() const { return fillMode_; }
  void setFillMode(FillMode mode);
  qreal radius() const { return radius_; }
  void setRadius(qreal radius);

 signals:
  void fillModeChanged();
  void radiusChanged();

 protected:
  // What is drawn, in pixels of the screen; asked for while it isn't blank.
  virtual QImage drawn() const;
  virtual bool isBlank() const { return picture_.isNull(); }
  // Draws anew.
  void renew();

  // Null for nothing.
  void setPicture(const QImage& picture);
  bool hasPicture() const { return !picture_.isNull(); }
  // The item's size in pixels of the screen.
  QSize pixelSize() const;
  // The item's size in pixels has changed.
  virtual void pixelSizeChanged() {}

  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

 private:
  qreal pixelRatio() const;

  FillMode fillMode_ = Fit;
  qreal radius_ = 0;
  QImage picture_;
  bool isStale_ = false;  // what is on screen isn't the picture's present cut
};

}  // namespace tarnloft
