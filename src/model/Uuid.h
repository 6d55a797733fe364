#pragma once

#include <QUuid>

#include <array>
#include <optional>
#include <string_view>

namespace tarnloft {

using UuidText = std::array<char, 36>;

// The canonical upper-case form, "8F0C3E5A-6B1D-4C44-9A57-0D3C2F1B7E21".
UuidText canonicalText(const QUuid& id);
QString canonicalString(const QUuid& id);

// Takes the 36-character form in either case and nothing else.
std::optional<QUuid> uuidFromText(std::string_view text);

}  // namespace tarnloft
