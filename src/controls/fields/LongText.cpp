#include "controls/fields/LongText.h"

#include <algorithm>

namespace tarnloft {
namespace {

// Behind the last line feed in the part's second half, or where no character is split.
qsizetype borderBehind(const QString& text, qsizetype start) {
  constexpr qsizetype half = LongText::mostInPart / 2;
  const qsizetype end = start + LongText::mostInPart;
  const qsizetype lineFeed = QStringView(text).sliced(end - half, half).lastIndexOf(u'\n');
  if (lineFeed >= 0) return end - half + lineFeed + 1;
  return text.at(end - 1).isHighSurrogate() ? end - 1 : end;
}

}  // namespace

QString LongText::firstPart(const QString& text) {
  return text.size() <= mostUndivided ? text : text.left(borderBehind(text, 0));
}

void LongText::setText(const QString& text) {
  if (text_ == text) return;
  text_ = text;
  divide();
  place_ = std::min(place_, count() - 1);
  tell();
}

QString LongText::part() const {
  const qsizetype start = starts_.at(size_t(place_));
  return text_.mid(start, end() - start);
}

qsizetype LongText::end() const {
  return place_ + 1 < count() ? starts_.at(size_t(place_) + 1) : text_.size();
}

void LongText::setPlace(int place) {
  place = std::clamp(place, 0, count() - 1);
  if (place == place_) return;
  const qsizetype start = starts_.at(size_t(place));
  divide();  // as what was edited may be long by now
  const auto behind = std::upper_bound(starts_.begin(), starts_.end(), start);
  place_ = int(behind - starts_.begin()) - 1;
  tell();
}

void LongText::edit(const QString& part) {
  if (isTelling_) return;
  const qsizetype start = starts_.at(size_t(place_)), before = end() - start;
  text_.replace(start, before, part);
  for (size_t i = size_t(place_) + 1; i < starts_.size(); ++i) starts_[i] += part.size() - before;
  emit edited(text_);
}

void LongText::divide() {
  starts_ = {0};
  if (text_.size() <= mostUndivided) return;
  while (text_.size() - starts_.back() > mostInPart) {
    starts_.push_back(borderBehind(text_, starts_.back()));
  }
}

void LongText::tell() {
  isTelling_ = true;
  emit partChanged();
  isTelling_ = false;
}

}  // namespace tarnloft
