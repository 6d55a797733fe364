#pragma once

#include "platform/DragSession.h"

#include <QMimeData>

namespace tarnloft {

// A drag's things as the desktop knows data: the files as a list of addresses and as plain paths,
// and a TIFF picture made when it is asked for. The desktop shows every format here to every
// program, so private payloads are none: they are found through `of` alone.
class DragData : public QMimeData {
  Q_OBJECT

 public:
  explicit DragData(QList<DragItem> items) : items_(std::move(items)) {}

  // The data of a drag of this process, which arrives as the object that it is; null for another's.
  static const DragData* of(const QMimeData& data) { return qobject_cast<const DragData*>(&data); }

  const QList<DragItem>& items() const { return items_; }

  QStringList formats() const override;
  bool hasFormat(const QString& format) const override { return formats().contains(format); }

 protected:
  QVariant retrieveData(const QString& format, QMetaType type) const override;

 private:
  QByteArray uriList() const;
  QString plainPaths() const;
  std::optional<QByteArray> makeTiff() const;

  const QList<DragItem> items_;
  // Receivers ask several times.
  mutable std::optional<std::optional<QByteArray>> madeTiff_;
};

}  // namespace tarnloft
