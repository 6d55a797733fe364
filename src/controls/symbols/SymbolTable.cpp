#include "controls/symbols/SymbolTable.h"

#include <algorithm>

namespace tarnloft::symbols {

std::optional<char32_t> glyph(QStringView name) {
  const std::u16string_view wanted(name.utf16(), static_cast<size_t>(name.size()));
  const auto all = table();
  const auto found = std::ranges::lower_bound(all, wanted, {}, &Symbol::name);
  if (found == all.end() || found->name != wanted) return std::nullopt;
  return found->glyph;
}

}  // namespace tarnloft::symbols
