#include "controls/sheets/Question.h"

#include "model/ShownText.h"

#include <utility>

namespace tarnloft {

// What is asked about may have a name of any length.
Question::Question(const Words& words, Answered answered)
    : words_(words), answered_(std::move(answered)) {
  words_.title = shownText(words.title);
  words_.message = shownText(words.message);
}

void Question::setTitle(const QString& title) {
  const QString shown = shownText(title);
  if (std::exchange(words_.title, shown) != shown) emit changed();
}

void Question::give(Answer answer) {
  answer_ = answer;
  emit finished();
}

}  // namespace tarnloft
