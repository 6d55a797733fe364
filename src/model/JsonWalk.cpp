#include "model/JsonWalk.h"

#include "model/Utf8.h"

namespace tarnloft {

bool JsonWalk::fail(const char* reason) {
  reason_ = reason;
  path_.clear();
  return false;
}

bool JsonWalk::at(std::string_view key) {
  path_ << textFromUtf8(key);
  return false;
}

bool JsonWalk::at(qsizetype index) {
  path_ << QStringLiteral("[%1]").arg(index);
  return false;
}

Error JsonWalk::error() const {
  QString place;
  for (auto step = path_.crbegin(); step != path_.crend(); ++step) {
    if (!place.isEmpty() && !step->startsWith(QLatin1Char('['))) place += QLatin1Char('.');
    place += *step;
  }
  if (place.isEmpty()) place = QStringLiteral("document");
  return {ErrorKind::malformed, place + QStringLiteral(": ") + QString::fromUtf8(reason_)};
}

std::optional<JsonWalk::PayloadContent> JsonWalk::payloadKind(Element element) {
  simdjson::dom::object object;
  if (element.get(object) != simdjson::SUCCESS) {
    fail("expected an object");
    return std::nullopt;
  }
  std::optional<PayloadContent> known;
  bool single = true;
  for (const auto [key, content] : object) {
    const auto kind = kindOf(key, PayloadKinds());
    if (!kind) {
      hasUnknownKeys_ = true;
      continue;
    }
    single = single && (!known || known->kind == *kind);
    known = PayloadContent{*kind, content};  // of a repeated key the last counts
  }
  if (known && single) return known;
  fail("Invalid number of keys found, expected one.");
  return std::nullopt;
}

}  // namespace tarnloft
