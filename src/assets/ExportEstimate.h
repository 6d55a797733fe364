#pragma once

#include "assets/BackgroundWork.h"
#include "assets/ExportTarget.h"

#include <QTimer>

namespace tarnloft {

// What the export sheet's fields ask for.
struct ExportChoice {
  ExportFormat format = ExportFormat::png;
  QSize pixelSize;
  double quality = 1;  // 0 to 1

  // Tells one choice from another, such as "800x600-jpeg-85".
  QString key() const;
};

// The size that an export would have, found by doing it in the background once the choice has
// rested. Main thread.
class ExportEstimate : public QObject {
  Q_OBJECT

 public:
  static constexpr std::chrono::milliseconds rest{300};

  // Both outlive the estimate and every conversion that it started.
  ExportEstimate(Images& images, BackgroundWork& work, const ExportTarget& target,
                 std::chrono::milliseconds delay = rest);
  ~ExportEstimate() override;

  // Such as "2.4 MB"; absent until it is known, and for good if the export gives nothing.
  const std::optional<QString>& text() const { return text_; }
  // The export gave nothing.
  bool hasFailed() const { return hasFailed_; }

  // A choice with another key than the last one makes the text absent at once and starts anew.
  void setChoice(const ExportChoice& choice);

 signals:
  void textChanged();

 private:
  void withdraw();
  void convert();
  void setText(const std::optional<QString>& text, bool hasFailed = false);

  Images& images_;
  BackgroundWork& work_;
  const ExportTarget target_;
  QTimer timer_;
  ExportChoice choice_;
  QString key_;  // of the job that waits or runs, or whose result stands
  BackgroundWork::TaskPtr task_;
  std::optional<QString> text_;
  bool hasFailed_ = false;
};

}  // namespace tarnloft
