#include "model/Timestamp.h"

#include <array>
#include <cstdio>

namespace tarnloft {
namespace {

using namespace std::chrono;

// All characters of the piece must be digits.
std::optional<int> number(std::string_view text, size_t from, size_t count) {
  int value = 0;
  for (const char c : text.substr(from, count)) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

std::optional<sys_days> dayOf(std::string_view text) {
  const auto y = number(text, 0, 4), m = number(text, 5, 2), d = number(text, 8, 2);
  if (!y || !m || !d || text[4] != '-' || text[7] != '-') return std::nullopt;
  const year_month_day date{year{*y}, month{unsigned(*m)}, day{unsigned(*d)}};
  return date.ok() ? std::optional<sys_days>(date) : std::nullopt;
}

std::optional<seconds> timeOf(std::string_view text) {
  const auto h = number(text, 11, 2), m = number(text, 14, 2), s = number(text, 17, 2);
  if (!h || !m || !s || text[10] != 'T' || text[13] != ':' || text[16] != ':') return std::nullopt;
  if (*h > 23 || *m > 59 || *s > 59) return std::nullopt;
  return hours{*h} + minutes{*m} + seconds{*s};
}

std::optional<seconds> offsetOf(std::string_view zone) {
  if (zone == "Z") return seconds{0};
  if (zone.size() != 6 || (zone[0] != '+' && zone[0] != '-') || zone[3] != ':') return std::nullopt;
  const auto h = number(zone, 1, 2), m = number(zone, 4, 2);
  if (!h || !m || *h > 23 || *m > 59) return std::nullopt;
  const seconds offset = hours{*h} + minutes{*m};
  return zone[0] == '-' ? -offset : offset;
}

}  // namespace

Timestamp systemNow() { return floor<milliseconds>(system_clock::now()); }

bool isWritable(Timestamp moment) {
  return moment >= sys_days{year{0} / 1 / 1} && moment < sys_days{year{10000} / 1 / 1};
}

std::string iso8601(Timestamp moment) {
  const auto midnight = floor<days>(moment);
  const year_month_day date{midnight};
  const hh_mm_ss time{floor<seconds>(moment - midnight)};
  std::array<char, 40> text;
  const int length =
      std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02dZ", int(date.year()),
                    unsigned(date.month()), unsigned(date.day()), int(time.hours().count()),
                    int(time.minutes().count()), int(time.seconds().count()));
  return std::string(text.data(), size_t(length));
}

std::optional<Timestamp> fromIso8601(std::string_view text) {
  constexpr size_t zoneAt = sizeof("2026-03-01T09:30:00") - 1;
  if (text.size() <= zoneAt) return std::nullopt;
  const auto date = dayOf(text);
  const auto time = timeOf(text);
  const auto offset = offsetOf(text.substr(zoneAt));
  if (!date || !time || !offset) return std::nullopt;
  const Timestamp moment(*date + *time - *offset);
  return isWritable(moment) ? std::optional(moment) : std::nullopt;
}

}  // namespace tarnloft
