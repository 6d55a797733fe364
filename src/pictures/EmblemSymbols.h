#pragma once

#include <span>
#include <string_view>

namespace tarnloft {

// The names of the symbols that the emblem picker offers, in the order in which it shows them.
std::span<const std::u16string_view> emblemSymbols();

}  // namespace tarnloft
