#include "model/JsonReader.h"

#include "model/Utf8.h"
#include "model/Uuid.h"

#include <cmath>

namespace tarnloft {

bool JsonReader::read(Element element, QString& text) {
  std::string_view utf8;
  if (element.get(utf8) != simdjson::SUCCESS) return fail("expected a string");
  text = textFromUtf8(utf8);
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

}  // namespace tarnloft
