#include "platform/desktop/fonts/FontFile.h"

#include <QStringDecoder>
#include <QtEndian>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <vector>

#include FT_SFNT_NAMES_H
#include FT_TRUETYPE_IDS_H
#include FT_TRUETYPE_TABLES_H
#include FT_TRUETYPE_TAGS_H

namespace tarnloft::freetype {
namespace {

constexpr qsizetype largestFile = qsizetype(128) << 20;
constexpr qsizetype headerSize = 12, entrySize = 16;

std::optional<QString> decoded(const FT_SfntName& name) {
  const QByteArrayView bytes(name.string, qsizetype(name.string_len));
  const bool isMac = name.platform_id == TT_PLATFORM_MACINTOSH;
  if (isMac && name.encoding_id != TT_MAC_ID_ROMAN) return std::nullopt;
  const bool isUnicode =
      name.platform_id == TT_PLATFORM_APPLE_UNICODE ||
      (name.platform_id == TT_PLATFORM_MICROSOFT &&
       (name.encoding_id == TT_MS_ID_SYMBOL_CS || name.encoding_id == TT_MS_ID_UNICODE_CS ||
        name.encoding_id == TT_MS_ID_UCS_4));
  if (!isMac && !isUnicode) return std::nullopt;
  QStringDecoder decoder(isMac ? "macintosh" : "UTF-16BE");
  const QString text = QString(decoder.decode(bytes)).trimmed();
  return text.isEmpty() || decoder.hasError() ? std::nullopt : std::optional(text);
}

// How soon a name is taken before others of its kind: English ones first.
int rankOf(const FT_SfntName& name) {
  constexpr int english = 0x09, languageMask = 0x3ff;
  const bool isMicrosoft = name.platform_id == TT_PLATFORM_MICROSOFT;
  if (name.language_id == TT_MS_LANGID_ENGLISH_UNITED_STATES && isMicrosoft) return 0;
  if ((name.language_id & languageMask) == english && isMicrosoft) return 1;
  if (name.platform_id == TT_PLATFORM_MACINTOSH && name.language_id == TT_MAC_LANGID_ENGLISH) {
    return 2;
  }
  return name.platform_id == TT_PLATFORM_APPLE_UNICODE ? 3 : 4;
}

// The best name of the first of the kinds that there is one of.
std::optional<QString> bestName(FT_Face face, std::initializer_list<int> kinds) {
  for (const int kind : kinds) {
    std::optional<QString> best;
    int bestRank = std::numeric_limits<int>::max();
    for (FT_UInt i = 0; i < FT_Get_Sfnt_Name_Count(face); ++i) {
      FT_SfntName name;
      if (FT_Get_Sfnt_Name(face, i, &name) != 0 || name.name_id != kind) continue;
      const auto text = rankOf(name) < bestRank ? decoded(name) : std::nullopt;
      if (!text) continue;
      best = text;
      bestRank = rankOf(name);
    }
    if (best) return best;
  }
  return std::nullopt;
}

std::optional<QString> plainName(const char* name) {
  const QString text = QString::fromUtf8(name).trimmed();
  return text.isEmpty() ? std::nullopt : std::optional(text);
}

struct Table {
  FT_ULong tag = 0;
  FT_ULong size = 0;
};

std::vector<Table> tablesOf(FT_Face face) {
  FT_ULong count = 0;
  if (FT_Sfnt_Table_Info(face, 0, nullptr, &count) != 0) return {};
  std::vector<Table> tables;
  for (FT_UInt i = 0; i < count; ++i) {
    Table table;
    if (FT_Sfnt_Table_Info(face, i, &table.tag, &table.size) == 0) tables.push_back(table);
  }
  std::sort(tables.begin(), tables.end(), [](auto& a, auto& b) { return a.tag < b.tag; });
  return tables;
}

quint32 flavorOf(const std::vector<Table>& tables) {
  const bool hasPostScript = std::any_of(tables.begin(), tables.end(), [](const Table& table) {
    return table.tag == TTAG_CFF || table.tag == TTAG_CFF2;
  });
  return hasPostScript ? TTAG_OTTO : 0x00010000;
}

template <class Number>
void append(QByteArray& bytes, Number number) {
  number = qToBigEndian(number);
  bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

}  // namespace

std::optional<FontNames> namesOf(FT_Face face) {
  if (!FT_IS_SFNT(face)) {
    const auto family = plainName(face->family_name);
    if (!family) return std::nullopt;
    return FontNames{*family, plainName(face->style_name)};
  }
  const auto family = bestName(face, {TT_NAME_ID_TYPOGRAPHIC_FAMILY, TT_NAME_ID_FONT_FAMILY});
  if (!family) return std::nullopt;
  return FontNames{*family,
                   bestName(face, {TT_NAME_ID_TYPOGRAPHIC_SUBFAMILY, TT_NAME_ID_FONT_SUBFAMILY})};
}

// Without the check sums, which no reader of the file looks at.
std::optional<QByteArray> plainFileOf(FT_Face face) {
  const std::vector<Table> tables = tablesOf(face);
  QByteArray file, content;
  append(file, flavorOf(tables));
  append(file, quint16(tables.size()));
  file.append(headerSize - file.size(), '\0');
  qsizetype offset = headerSize + entrySize * qsizetype(tables.size());
  for (const auto& [tag, size] : tables) {
    const qsizetype padded = (qsizetype(size) + 3) / 4 * 4;
    if (offset + content.size() + padded > largestFile) return std::nullopt;
    append(file, quint32(tag));
    append(file, quint32(0));
    append(file, quint32(offset + content.size()));
    append(file, quint32(size));
    QByteArray table(padded, '\0');
    FT_ULong length = size;
    FT_Load_Sfnt_Table(face, tag, 0, reinterpret_cast<FT_Byte*>(table.data()), &length);
    content += table;
  }
  return tables.empty() ? std::nullopt : std::optional(file + content);
}

}  // namespace tarnloft::freetype
