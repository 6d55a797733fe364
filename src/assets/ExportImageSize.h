#pragma once

#include <QList>
#include <QSize>
#include <QSizeF>
#include <QString>

namespace tarnloft {

// A size offered by name, as a part of the native one.
struct ExportPreset {
  QString label;
  double scale = 1;

  bool operator==(const ExportPreset&) const = default;
};

// The two size fields of the export sheet, in pixels, and their lock.
class ExportImageSize {
 public:
  // Starts at the native size, locked. Its sides are finite.
  explicit ExportImageSize(QSizeF nativeSize);

  int width() const { return width_; }
  int height() const { return height_; }
  QSize pixelSize() const { return {width_, height_}; }
  bool lockAspect() const { return lockAspect_; }

  // Stored as at least 1; the other side follows while the lock is on.
  void setWidth(int width);
  void setHeight(int height);
  // Changes neither side.
  void setLockAspect(bool locked) { lockAspect_ = locked; }
  // Both sides from the native size, whatever the lock says.
  void applyScale(double scale);

  // Three parts of the native size, then the fixed sides that are smaller than its longest.
  QList<ExportPreset> presets() const;

 private:
  QSizeF native_;
  double aspect_;  // width over height
  int width_ = 1;
  int height_ = 1;
  bool lockAspect_ = true;
};

}  // namespace tarnloft
