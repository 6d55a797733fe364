#include "workspace/ToastCenter.h"

#include "model/ShownText.h"

#include <utility>

namespace tarnloft {

ToastCenter::ToastCenter(std::chrono::milliseconds shownFor, QObject* parent) : QObject(parent) {
  clearWork_.setSingleShot(true);
  clearWork_.setInterval(shownFor);
  connect(&clearWork_, &QTimer::timeout, this, [this] { setMessage(std::nullopt); });
}

void ToastCenter::show(const QString& text) {
  clearWork_.start();
  setMessage(shownText(text));
}

void ToastCenter::setMessage(const std::optional<QString>& message) {
  if (std::exchange(message_, message) != message) emit messageChanged();
}

}  // namespace tarnloft
