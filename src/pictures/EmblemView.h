#pragma once

#include "pictures/EmblemLook.h"
#include "pictures/ThumbnailView.h"

namespace tarnloft {

// The round mark of a brand or a section.
//   EmblemView { look: row.emblem; thumbnails: window.thumbnails; size: 22 }
// Decoration: what it stands for is named beside it. One picture of all its parts, because a list
// shows many.
class EmblemView : public tarnloft::ThumbnailView {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tarnloft::EmblemLook look READ look WRITE setLook NOTIFY lookChanged REQUIRED)
  Q_PROPERTY(double size READ size WRITE setSize NOTIFY sizeChanged)  // points across
  // Of a symbol that stands in for what wasn't chosen.
  Q_PROPERTY(QColor fallbackTint READ fallbackTint WRITE setFallbackTint NOTIFY fallbackTintChanged)

 public:
  explicit EmblemView(QQuickItem* parent = nullptr);

  const EmblemLook& look() const { return look_; }
  void setLook(const EmblemLook& look);
  double size() const { return width(); }
  void setSize(double size);
  QColor fallbackTint() const { return fallbackTint_; }
  void setFallbackTint(const QColor& tint);

 signals:
  void lookChanged();
  void sizeChanged();
  void fallbackTintChanged();

 protected:
  void componentComplete() override;
  bool isBlank() const override;
  QImage drawn() const override;

 private:
  void drawRim(QPainter& painter) const;
  void drawMark(QPainter& painter) const;
  QColor ink() const;

  EmblemLook look_;
  QColor fallbackTint_;
  const class Theme* theme_ = nullptr;  // the engine's, from completion on
};

}  // namespace tarnloft
