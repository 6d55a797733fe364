#pragma once

#include "platform/Progress.h"

#include <QObject>
#include <QTimer>

#include <deque>
#include <memory>

namespace tarnloft {

// The pieces of work that take longer than a moment and that the user may end. Main thread.
class LongWork : public QObject {
  Q_OBJECT

 public:
  LongWork();

  // For work that begins now, to be told by whoever does it; `text` is such as "Exporting “Acme”…".
  std::shared_ptr<Progress> begin(const QString& text);
  void begin(const std::shared_ptr<Progress>& progress, const QString& text);
  // It has ended, however that was.
  void end(const std::shared_ptr<Progress>& progress);

  // Of the oldest piece, once it has lasted a second; empty while there is nothing to tell.
  QString text() const;
  double share() const;
  void cancel();

 signals:
  void textChanged();
  void shareChanged();

 private:
  struct Piece {
    QString text;
    std::shared_ptr<Progress> progress;
    std::chrono::steady_clock::time_point begun;
  };

  void look();

  std::deque<Piece> pieces_;
  bool isTold_ = false;  // the oldest is
  QTimer look_;          // with pieces
};

}  // namespace tarnloft
