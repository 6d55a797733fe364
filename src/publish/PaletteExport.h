#pragma once

#include "model/Section.h"

namespace tarnloft {

// The colours of a section as a snippet that a developer pastes into a project. Pure functions.
namespace PaletteExport {

struct Entry {
  QString name;  // empty for a colour without one
  QString hex;   // written out as it stands
  std::optional<QString> spot;

  bool operator==(const Entry&) const = default;
};

size_t qHash(const Entry& entry, size_t seed = 0);

// In the order in which they are offered.
enum class Format { cssVariables, scss, tailwind, swiftUI, json };

// The format's name, such as "CSS Variables".
QString rawValue(Format format);

// One entry for each colour of the section, in order.
QList<Entry> entries(const Section& section);

// The snippet, without a line feed at its end.
QString format(const QList<Entry>& entries, Format format);

// An identifier of a slug: "brand-blue" gives "brandBlue", "123456" gives "c123456".
QString camelCase(const QString& slug);

}  // namespace PaletteExport

template <>
struct EnumTable<PaletteExport::Format> {
  using Format = PaletteExport::Format;
  static constexpr std::array cases{
      EnumCase<Format>{Format::cssVariables, "CSS Variables"},
      EnumCase<Format>{Format::scss, "SCSS"},
      EnumCase<Format>{Format::tailwind, "Tailwind"},
      EnumCase<Format>{Format::swiftUI, "SwiftUI"},
      EnumCase<Format>{Format::json, "JSON"},
  };
};

}  // namespace tarnloft
