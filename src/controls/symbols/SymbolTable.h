#pragma once

#include <QStringView>

#include <optional>
#include <span>
#include <string_view>

// The interface's symbols: names as they stand in brands and views ("leaf.fill"), each with its
// glyph in the built-in symbol font (SymbolFont.h). Made at build time from symbols.txt.
namespace tarnloft::symbols {

struct Symbol {
  std::u16string_view name;
  char32_t glyph;
  std::string_view source;  // the icon font's word for the glyph, or "drawn/" and ours
};

// Every symbol, sorted by name.
std::span<const Symbol> table();

// None for a name that isn't in the table, as a brand from elsewhere may hold.
std::optional<char32_t> glyph(QStringView name);

}  // namespace tarnloft::symbols
