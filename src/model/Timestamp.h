#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarnloft {

// A moment in UTC. Files keep whole seconds of it.
using Timestamp = std::chrono::sys_time<std::chrono::milliseconds>;

// Where the present time comes from; tests hand in their own.
using Clock = std::function<Timestamp()>;

Timestamp systemNow();

// True for the years 0 to 9999, which are all that have a written form.
bool isWritable(Timestamp moment);

// "2026-03-01T09:30:00Z": ISO 8601 in UTC, cut down to whole seconds. The moment must be writable.
std::string iso8601(Timestamp moment);

// Takes "Z" or an offset such as "+01:00" behind the time; refuses fractional seconds, dates that
// the calendar doesn't have, moments that are not writable, and any other form.
std::optional<Timestamp> fromIso8601(std::string_view text);

}  // namespace tarnloft
