#include "model/JsonReader.h"

#include "model/Uuid.h"

#include <algorithm>
#include <cmath>

namespace tarnloft {
namespace {

QString fromUtf8(std::string_view text) {
  // QString::fromUtf8 takes a leading U+FEFF for a byte-order mark and drops it; in a string it is
  // a character like any other.
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (text.size() >= mark.size() && text.substr(0, mark.size()) == mark) {
    return QChar(0xFEFF) + fromUtf8(text.substr(mark.size()));
  }
  return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

std::optional<size_t> payloadCase(std::string_view key) {
  const auto found = std::find(payloadKeys.begin(), payloadKeys.end(), key);
  if (found == payloadKeys.end()) return std::nullopt;
  return size_t(found - payloadKeys.begin());
}

}  // namespace

bool JsonReader::read(Element element, QString& text) {
  std::string_view utf8;
  if (element.get(utf8) != simdjson::SUCCESS) return fail("expected a string");
  text = fromUtf8(utf8);
  return true;
}

bool JsonReader::read(Element element, QUuid& id) {
  std::string_view text;
  if (element.get(text) != simdjson::SUCCESS) return fail("expected a UUID");
  const auto known = uuidFromText(text);
  if (!known) return fail("expected a UUID");
  id = *known;
  return true;
}

bool JsonReader::read(Element element, Timestamp& moment) {
  std::string_view text;
  if (element.get(text) != simdjson::SUCCESS) return fail("expected a date");
  const auto known = fromIso8601(text);
  if (!known) return fail("expected a date such as 2026-03-01T09:30:00Z");
  moment = *known;
  return true;
}

bool JsonReader::read(Element element, qint64& number) {
  if (element.is_int64()) {
    number = element.get_int64().value_unsafe();
    return true;
  }
  constexpr double limit = 9223372036854775808.0;  // 2^63; a double so large may be a rounded one
  if (!element.is_double()) return fail("expected an integer");
  const double wide = element.get_double().value_unsafe();
  if (wide != std::floor(wide) || std::fabs(wide) >= limit) {
    return fail("expected an integer");
  }
  number = static_cast<qint64>(wide);
  return true;
}

bool JsonReader::read(Element element, double& number) {
  return element.get(number) == simdjson::SUCCESS || fail("expected a number");
}

bool JsonReader::read(Element element, ItemPayload& payload) {
  simdjson::dom::object object;
  if (element.get(object) != simdjson::SUCCESS) return fail("expected an object");
  std::optional<size_t> index;
  Element content;
  for (const auto [key, value] : object) {
    const auto known = payloadCase(key);
    if (!known) continue;
    if (index && index != known) return fail("Invalid number of keys found, expected one.");
    index = known;
    content = value;
  }
  if (!index) return fail("Invalid number of keys found, expected one.");
  return readCase(*index, content, payload) || at(payloadKeys[*index]);
}

bool JsonReader::fail(const char* reason) {
  reason_ = reason;
  path_.clear();
  return false;
}

bool JsonReader::at(std::string_view key) {
  path_ << fromUtf8(key);
  return false;
}

bool JsonReader::at(qsizetype index) {
  path_ << QStringLiteral("[%1]").arg(index);
  return false;
}

Error JsonReader::error() const {
  QString place;
  for (auto step = path_.crbegin(); step != path_.crend(); ++step) {
    if (!place.isEmpty() && !step->startsWith(QLatin1Char('['))) place += QLatin1Char('.');
    place += *step;
  }
  if (place.isEmpty()) place = QStringLiteral("document");
  return {ErrorKind::malformed, place + QStringLiteral(": ") + QString::fromUtf8(reason_)};
}

}  // namespace tarnloft
