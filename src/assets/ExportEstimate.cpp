#include "assets/ExportEstimate.h"

#include "assets/ByteCount.h"
#include "assets/ImageExporter.h"

#include <QPointer>

namespace tarnloft {

QString ExportChoice::key() const {
  const std::string_view name = rawValue(format);
  return QStringLiteral("%1x%2-%3-%4")
      .arg(pixelSize.width())
      .arg(pixelSize.height())
      .arg(QLatin1String(name.data(), qsizetype(name.size())))
      .arg(int(quality * 100));
}

ExportEstimate::ExportEstimate(Images& images, BackgroundWork& work, const ExportTarget& target,
                               std::chrono::milliseconds delay)
    : images_(images), work_(work), target_(target) {
  timer_.setSingleShot(true);
  timer_.setInterval(delay);
  connect(&timer_, &QTimer::timeout, this, &ExportEstimate::convert);
}

ExportEstimate::~ExportEstimate() { withdraw(); }

void ExportEstimate::setChoice(const ExportChoice& choice) {
  if (choice.key() == key_) return;
  choice_ = choice;
  key_ = choice.key();
  withdraw();
  setText(std::nullopt);
  timer_.start();
}

void ExportEstimate::withdraw() {
  if (task_) task_->drop();
}

void ExportEstimate::convert() {
  const auto size = std::make_shared<std::optional<qint64>>();
  task_ = work_.start(
      [&images = images_, target = target_, choice = choice_, size] {
        const auto bytes = ImageExporter::exportImage(images, target.path(), choice.format,
                                                      choice.pixelSize, choice.quality);
        if (bytes) *size = bytes->size();
      },
      [self = QPointer(this), key = key_, size] {
        if (!self || self->key_ != key) return;
        *size ? self->setText(byteCountText(**size)) : self->setText(std::nullopt, true);
      });
}

void ExportEstimate::setText(const std::optional<QString>& text, bool hasFailed) {
  if (text == text_ && hasFailed == hasFailed_) return;
  text_ = text;
  hasFailed_ = hasFailed;
  emit textChanged();
}

}  // namespace tarnloft
