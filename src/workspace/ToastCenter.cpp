#include "workspace/ToastCenter.h"

#include "model/ShownText.h"

#include <utility>

namespace tarnloft {

ToastCenter::ToastCenter(std::chrono::milliseconds shownFor, QObject* parent) : QObject(parent) {
  clearWork_.setSingleShot(true);
  clearWork_.setInterval(shownFor);
  connect(&clearWork_, &QTimer::timeout, this, &ToastCenter::showUnderWay);
}

void ToastCenter::show(const QString& text) {
  clearWork_.start();
  setMessage(shownText(text));
}

void ToastCenter::setUnderWay(const QString& text) {
  underWay_ = text;
  if (!clearWork_.isActive()) showUnderWay();
}

void ToastCenter::showUnderWay() {
  setMessage(underWay_.isEmpty() ? std::nullopt : std::optional(underWay_));
}

void ToastCenter::setMessage(const std::optional<QString>& message) {
  if (std::exchange(message_, message) != message) emit messageChanged();
}

}  // namespace tarnloft
