#pragma once

#include "platform/desktop/vectors/VectorProtocol.h"

#include <QByteArray>
#include <QImage>
#include <QMutex>
#include <QSizeF>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace tarnloft {

class VectorWorker;

// Draws vector files by a program that is ended when it takes too long or dies of a file. Programs
// are started when needed and kept for the next file. Any thread, several at a time.
class VectorDrawer {
 public:
  // `program` is the path of the drawing program.
  explicit VectorDrawer(QString program);
  ~VectorDrawer();
  Q_DISABLE_COPY_MOVE(VectorDrawer)

  // In points.
  std::optional<QSizeF> measure(VectorKind kind, const QByteArray& file);
  // Its longer side is `maxPixel`.
  std::optional<QImage> fit(VectorKind kind, const QByteArray& file, int maxPixel);
  std::optional<QImage> stretch(VectorKind kind, const QByteArray& file, QSize size);

 private:
  struct Answer;

  std::optional<Answer> ask(const VectorRequest& request, const QByteArray& file);
  std::optional<QImage> draw(const VectorRequest& request, const QByteArray& file);
  std::unique_ptr<VectorWorker> takeWorker();
  void keep(std::unique_ptr<VectorWorker> worker);

  const QString program_;
  QMutex mutex_;
  std::vector<std::unique_ptr<VectorWorker>> idle_;
};

}  // namespace tarnloft
