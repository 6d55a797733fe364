#include "publish/PaletteExport.h"

#include <QHash>
#include <QStringList>
#include <QTextBoundaryFinder>

namespace tarnloft::PaletteExport {
namespace {

struct Resolved {
  QString slug;
  QString name;
  Entry entry;
};

// The user-perceived characters of a text, so that a letter and its combining accent stay together.
QStringList characters(const QString& text) {
  QStringList result;
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  for (qsizetype from = 0, to; (to = finder.toNextBoundary()) >= 0; from = to) {
    result << text.sliced(from, to - from);
  }
  return result;
}

char32_t firstCodePoint(const QString& character) { return character.toUcs4().value(0); }

bool isLetterOrNumber(const QString& character) {
  const char32_t code = firstCodePoint(character);
  return QChar::isLetter(code) || QChar::isNumber(code);
}

// Lower case, runs of anything but letters and numbers as one "-"; may be empty.
QString slugOf(const QString& text) {
  QStringList words{QString()};
  for (const QString& character : characters(text.toLower())) {
    if (isLetterOrNumber(character)) {
      words.last() += character;
    } else if (!words.last().isEmpty()) {
      words << QString();
    }
  }
  words.removeAll(QString());
  return words.join(QLatin1Char('-'));
}

QList<Resolved> resolve(const QList<Entry>& entries) {
  QList<Resolved> result;
  QHash<QString, int> counters;
  for (const Entry& entry : entries) {
    const QString name = entry.name.isEmpty() ? entry.hex : entry.name;
    QString slug = slugOf(name);
    if (slug.isEmpty()) slug = QStringLiteral("color-%1").arg(result.size() + 1);
    const int count = ++counters[slug];
    if (count > 1) slug += QStringLiteral("-%1").arg(count);
    result << Resolved{slug, name, entry};
  }
  return result;
}

QString quotedForJson(QString text) {
  text.replace(QLatin1String("\\"), QLatin1String("\\\\"));
  text.replace(QLatin1String("\""), QLatin1String("\\\""));
  return QLatin1Char('"') + text + QLatin1Char('"');
}

QString jsonLine(const Resolved& color) {
  QString line = QStringLiteral("  { \"name\": ") + quotedForJson(color.name) +
                 QStringLiteral(", \"hex\": \"") + color.entry.hex + QLatin1Char('"');
  if (color.entry.spot) line += QStringLiteral(", \"spot\": ") + quotedForJson(*color.entry.spot);
  return line + QStringLiteral(" }");
}

template <class Line>
QString joined(const QList<Resolved>& colors, const QString& separator, Line&& line) {
  QStringList lines;
  for (const Resolved& color : colors) lines << line(color);
  return lines.join(separator);
}

constexpr QLatin1String tailwindHead(
    "// tailwind.config.js\n"
    "module.exports = {\n"
    "  theme: {\n"
    "    extend: {\n"
    "      colors: {\n");
constexpr QLatin1String tailwindTail(
    "\n"
    "      },\n"
    "    },\n"
    "  },\n"
    "}");

}  // namespace

size_t qHash(const Entry& entry, size_t seed) {
  return qHashMulti(seed, entry.name, entry.hex, entry.spot.has_value(),
                    entry.spot.value_or(QString()));
}

QString rawValue(Format format) {
  const std::string_view text = tarnloft::rawValue(format);
  return QString::fromLatin1(text.data(), qsizetype(text.size()));
}

QList<Entry> entries(const Section& section) {
  QList<Entry> result;
  for (const Item& item : section.items) {
    if (const auto* color = std::get_if<ColorPayload>(&item.payload)) {
      const ColorValue& value = color->value;
      result << Entry{value.name.value_or(QString()), value.hex.toUpper(), value.spot};
    }
  }
  return result;
}

QString camelCase(const QString& slug) {
  const QStringList words = slug.split(QLatin1Char('-'), Qt::SkipEmptyParts);
  if (words.isEmpty()) return QStringLiteral("color");
  QString result = words.first();
  if (QChar::isNumber(firstCodePoint(result))) result.prepend(QLatin1Char('c'));
  for (const QString& word : words.sliced(1)) {
    const QString first = characters(word).constFirst();
    result += first.toUpper() + word.sliced(first.size());
  }
  return result;
}

QString format(const QList<Entry>& entries, Format format) {
  const QList<Resolved> colors = resolve(entries);
  const QString lineFeed = QStringLiteral("\n");
  switch (format) {
    case Format::cssVariables:
      return QStringLiteral(":root {\n") +
             joined(colors, lineFeed,
                    [](const Resolved& color) {
                      return QStringLiteral("  --") + color.slug + QStringLiteral(": ") +
                             color.entry.hex + QLatin1Char(';');
                    }) +
             QStringLiteral("\n}");
    case Format::scss:
      return joined(colors, lineFeed, [](const Resolved& color) {
        return QLatin1Char('$') + color.slug + QStringLiteral(": ") + color.entry.hex +
               QLatin1Char(';');
      });
    case Format::tailwind:
      return tailwindHead +
             joined(colors, lineFeed,
                    [](const Resolved& color) {
                      return QStringLiteral("        '") + color.slug + QStringLiteral("': '") +
                             color.entry.hex + QStringLiteral("',");
                    }) +
             tailwindTail;
    case Format::swiftUI:
      return QStringLiteral("import SwiftUI\n\nextension Color {\n") +
             joined(colors, lineFeed,
                    [](const Resolved& color) {
                      return QStringLiteral("    static let ") + camelCase(color.slug) +
                             QStringLiteral(" = Color(hex: \"") + color.entry.hex +
                             QStringLiteral("\")");
                    }) +
             QStringLiteral("\n}");
    case Format::json:
      return QStringLiteral("[\n") + joined(colors, QStringLiteral(",\n"), jsonLine) +
             QStringLiteral("\n]");
  }
  Q_UNREACHABLE();
}

}  // namespace tarnloft::PaletteExport
