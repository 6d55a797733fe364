#pragma once

#include "model/Error.h"

#include <QByteArray>

#include <simdjson.h>

namespace tarnloft {

// Parses JSON text. The element lives until the same thread parses again. Refuses a byte-order mark
// and nesting beyond 512 levels; takes integers of any length, as doubles. For sources only.
Result<simdjson::dom::element> parseJson(const QByteArray& json);

}  // namespace tarnloft
