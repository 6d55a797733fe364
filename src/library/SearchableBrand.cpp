#include "library/SearchableBrand.h"

#include "model/SearchText.h"
#include "model/Uuid.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace tarnloft {
namespace {

// No byte of UTF-8, so no query spans two tokens.
constexpr char separator = '\xFF';

QString shownName(const QString& sectionName) {
  return sectionName.isEmpty() ? QStringLiteral("Untitled Section") : sectionName;
}

// By kind of payload, behind that of a section.
const QStringList& typeLabels() {
  static const QStringList labels = [] {
    QStringList list{QStringLiteral("Section")};
    const auto add = [&](const ItemPayload& payload) { list << Item::create(payload).typeLabel(); };
    add(HeaderPayload{});
    add(TextPayload{});
    add(ColorPayload{});
    add(GradientPayload{});
    add(ImagePayload{});
    add(VideoPayload{});
    add(FontPayload{});
    add(CodePayload{});
    add(LogoPayload{});
    return list;
  }();
  return labels;
}

}  // namespace

QString SearchHit::id() const {
  return brandURL + QLatin1Char('|') + canonicalString(sectionID) + QLatin1Char('|') +
         (itemID ? canonicalString(*itemID) : QStringLiteral("section"));
}

SearchableBrand::SearchableBrand(const Brand& brand)
    : brandName_(brand.name), brandEmblem_(brand.emblem) {
  for (const Section& section : brand.sections) addSection(section);
  folded_.squeeze();
  titles_.squeeze();
  sections_.shrink_to_fit();
  entries_.shrink_to_fit();
}

void SearchableBrand::addSection(const Section& section) {
  sections_.push_back({section.id, section.name});
  entries_.push_back({quint32(folded_.size()), quint32(sections_.size() - 1), 0, 0, 0, QUuid()});
  addToken(section.name);
  for (const Item& item : section.items) addItem(item);
}

void SearchableBrand::addItem(const Item& item) {
  const QByteArray title = item.displayName().toUtf8();
  entries_.push_back({quint32(folded_.size()), quint32(sections_.size() - 1),
                      quint32(titles_.size()), quint32(title.size()),
                      quint8(item.payload.index() + 1), item.id});
  titles_ += title;
  for (const QString& token : item.searchTokens()) addToken(token);
}

void SearchableBrand::addToken(const QString& token) {
  folded_ += foldedForSearch(token).toUtf8();
  folded_ += separator;
}

void SearchableBrand::appendHits(const QString& packageURL, const QByteArray& foldedQuery,
                                 QList<SearchHit>& hits) const {
  const std::string_view text(folded_.constData(), size_t(folded_.size()));
  const auto find = [&](size_t from) -> std::optional<size_t> {
    const void* place = ::memmem(text.data() + from, text.size() - from, foldedQuery.constData(),
                                 size_t(foldedQuery.size()));
    if (!place) return std::nullopt;
    return size_t(static_cast<const char*>(place) - text.data());
  };
  auto entry = entries_.begin();
  for (auto place = find(0); place; place = find(entry->tokensAt)) {
    // The entry is the last that begins at or before the place; on to the next one behind it.
    entry = std::upper_bound(entry, entries_.end(), *place, [](size_t at, const Entry& candidate) {
      return at < candidate.tokensAt;
    });
    hits << hit(*std::prev(entry), packageURL);
    if (entry == entries_.end()) break;
  }
}

SearchHit SearchableBrand::hit(const Entry& entry, const QString& packageURL) const {
  const SectionRow& section = sections_[entry.section];
  const QString sectionName = shownName(section.name);
  const bool isSection = entry.type == 0;
  const QString title =
      isSection ? sectionName
                : QString::fromUtf8(titles_.constData() + entry.titleAt, entry.titleLength);
  return {packageURL,   brandName_,
          brandEmblem_, section.id,
          sectionName,  isSection ? std::nullopt : std::optional(entry.item),
          title,        typeLabels().at(entry.type)};
}

qsizetype SearchableBrand::memory() const {
  qsizetype bytes = qsizetype(sizeof *this) + folded_.capacity() + titles_.capacity() +
                    qsizetype(entries_.capacity() * sizeof(Entry)) +
                    qsizetype(sections_.capacity() * sizeof(SectionRow));
  for (const SectionRow& section : sections_) bytes += section.name.capacity() * 2;
  return bytes;
}

}  // namespace tarnloft
