#pragma once

#include <QImage>
#include <QPointer>
#include <QQuickImageProvider>
#include <QQuickItem>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace tarnloft {

// A picture in a rectangle with round corners, cut in C++ so that every scene graph draws it, and
// crisp at the screen's device pixel ratio. Decoding and cutting run beside the main thread; a
// picture that is no longer wanted is cancelled.
class RoundedImage : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  // "image://provider/id" of any provider that gives pictures, "file:" or "qrc:".
  Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged)
  Q_PROPERTY(qreal radius READ radius WRITE setRadius NOTIFY radiusChanged)  // points
  Q_PROPERTY(FillMode fillMode READ fillMode WRITE setFillMode NOTIFY fillModeChanged)
  Q_PROPERTY(Status status READ status NOTIFY statusChanged)

 public:
  enum FillMode { Fill, Fit };  // cover the rectangle, or show all of the picture, centred
  Q_ENUM(FillMode)
  enum Status { Null, Loading, Ready, Error };
  Q_ENUM(Status)

  explicit RoundedImage(QQuickItem* parent = nullptr);
  ~RoundedImage() override;

  QUrl source() const { return m_source; }
  void setSource(const QUrl& source);
  qreal radius() const { return m_radius; }
  void setRadius(qreal radius);
  FillMode fillMode() const { return m_fillMode; }
  void setFillMode(FillMode mode);
  Status status() const { return m_status; }

 signals:
  void sourceChanged();
  void radiusChanged();
  void fillModeChanged();
  void statusChanged();

 protected:
  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

 private:
  void load();
  void loadFromProvider(const QString& name, const QString& id);
  void loadInBackground(std::function<QImage()> read);
  void receive(quint64 request, const QImage& picture);
  void cut();
  void dropResponse();
  void setStatus(Status status);
  qreal pixelRatio() const;

  QUrl m_source;
  qreal m_radius = 0;
  FillMode m_fillMode = Fill;
  Status m_status = Null;
  QImage m_picture;  // as it came
  QImage m_cut;      // as it is shown, in device pixels
  bool m_cutChanged = false;
  quint64 m_request = 0;  // the newest load; results of older ones are dropped
  quint64 m_cutting = 0;
  QPointer<QQuickImageResponse> m_response;
};

}  // namespace tarnloft
