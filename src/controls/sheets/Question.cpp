#include "controls/sheets/Question.h"

#include <utility>

namespace tarnloft {

void Question::setTitle(const QString& title) {
  if (std::exchange(words_.title, title) != title) emit changed();
}

void Question::give(Answer answer) {
  answer_ = answer;
  emit finished();
}

}  // namespace tarnloft
