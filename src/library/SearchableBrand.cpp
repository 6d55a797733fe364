#include "library/SearchableBrand.h"

#include "model/RecordView.h"
#include "model/SearchText.h"
#include "model/Utf8.h"
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
const QStringList& shownTypes() {
  static const QStringList types = [] {
    QStringList list{QStringLiteral("Section")};
    for (const std::string_view label : typeLabels) list << textFromUtf8(label);
    return list;
  }();
  return types;
}

void append(const QString& text, std::string& utf8) { appendUtf8(text, utf8); }
void append(std::string_view text, std::string& utf8) { utf8 += text; }

template <class Visitor>
void visitPayload(const ItemPayload& payload, Visitor&& visitor) {
  std::visit([&](const auto& content) { visitor(payload.index(), content); }, payload);
}
template <class Visitor>
void visitPayload(const PayloadView& payload, Visitor&& visitor) {
  payload.visit(visitor);
}

}  // namespace

// Fills a searchable brand from one in memory or in a document.
class SearchableBrand::Filler {
 public:
  explicit Filler(SearchableBrand& brand) : brand_(brand) {}

  void add(const FormOf<Brand> auto& brand) {
    brand_.brandName_ = valueOf<&Brand::name>(brand);
    brand_.brandEmblem_ = valueOf<&Brand::emblem>(brand);
    for (const auto& section : fieldOf<&Brand::sections>(brand)) addSection(section);
    brand_.folded_.shrink_to_fit();
    brand_.titles_.shrink_to_fit();
    brand_.sections_.shrink_to_fit();
    brand_.entries_.shrink_to_fit();
  }

 private:
  void addSection(const FormOf<Section> auto& section) {
    brand_.sections_.push_back({fieldOf<&Section::id>(section), valueOf<&Section::name>(section)});
    startEntry(0, QUuid());
    addToken(fieldOf<&Section::name>(section));
    for (const auto& item : fieldOf<&Section::items>(section)) addItem(item);
  }

  void addItem(const FormOf<Item> auto& item) {
    visitPayload(fieldOf<&Item::payload>(item), [&](size_t kind, const auto& content) {
      startEntry(quint8(kind + 1), fieldOf<&Item::id>(item));
      const size_t titleAt = brand_.titles_.size();
      useName(content, [&](const auto& name) { append(name, brand_.titles_); });
      addToken(std::string_view(brand_.titles_).substr(titleAt));
      addToken(typeLabels[kind]);
      useFurtherTokens(content, [&](const auto& token) { addToken(token); });
    });
  }

  void startEntry(quint8 type, const QUuid& item) {
    brand_.entries_.push_back({quint32(brand_.folded_.size()), quint32(brand_.titles_.size()),
                               quint32(brand_.sections_.size() - 1), type, item});
  }

  void addToken(const auto& token) {
    folding_.append(token, brand_.folded_);
    brand_.folded_ += separator;
  }

  SearchableBrand& brand_;
  const SearchFolding folding_;
};

QString SearchHit::id() const {
  return brandURL + QLatin1Char('|') + canonicalString(sectionID) + QLatin1Char('|') +
         (itemID ? canonicalString(*itemID) : QStringLiteral("section"));
}

SearchableBrand::SearchableBrand(const Brand& brand) { Filler(*this).add(brand); }

Result<SearchableBrand> SearchableBrand::read(const QByteArray& json) {
  return RecordView<Brand>::parse(json).map([](const RecordView<Brand>& brand) {
    SearchableBrand searchable;
    Filler(searchable).add(brand);
    return searchable;
  });
}

template <class Found>
void SearchableBrand::walk(const std::string& foldedQuery, Found found) const {
  const std::string_view text = folded_;
  const auto find = [&](size_t from) -> std::optional<size_t> {
    const void* place =
        ::memmem(text.data() + from, text.size() - from, foldedQuery.data(), foldedQuery.size());
    if (!place) return std::nullopt;
    return size_t(static_cast<const char*>(place) - text.data());
  };
  auto entry = entries_.begin();
  for (auto place = find(0); place; place = find(entry->tokensAt)) {
    // The entry is the last that begins at or before the place; on to the next one behind it.
    entry = std::upper_bound(entry, entries_.end(), *place, [](size_t at, const Entry& candidate) {
      return at < candidate.tokensAt;
    });
    found(*std::prev(entry));
    if (entry == entries_.end()) break;
  }
}

void SearchableBrand::appendHits(const QString& packageURL, const std::string& foldedQuery,
                                 QList<SearchHit>& hits) const {
  walk(foldedQuery, [&](const Entry& entry) { hits << hit(entry, packageURL); });
}

std::vector<bool> SearchableBrand::matches(const std::string& foldedQuery) const {
  std::vector<bool> result(entries_.size());
  walk(foldedQuery, [&](const Entry& entry) { result[size_t(&entry - entries_.data())] = true; });
  return result;
}

SearchHit SearchableBrand::hit(const Entry& entry, const QString& packageURL) const {
  const SectionRow& section = sections_[entry.section];
  const QString sectionName = shownName(section.name);
  const bool isSection = entry.type == 0;
  return {packageURL,
          brandName_,
          brandEmblem_,
          section.id,
          sectionName,
          isSection ? std::nullopt : std::optional(entry.item),
          isSection ? sectionName : title(entry),
          shownTypes().at(entry.type)};
}

QString SearchableBrand::title(const Entry& entry) const {
  const bool isLast = &entry == &entries_.back();
  const size_t end = isLast ? titles_.size() : (&entry + 1)->titleAt;
  return textFromUtf8(std::string_view(titles_).substr(entry.titleAt, end - entry.titleAt));
}

qsizetype SearchableBrand::memory() const {
  qsizetype bytes = qsizetype(sizeof *this + folded_.capacity() + titles_.capacity() +
                              entries_.capacity() * sizeof(Entry)) +
                    qsizetype(sections_.capacity() * sizeof(SectionRow));
  for (const SectionRow& section : sections_) bytes += section.name.capacity() * 2;
  return bytes;
}

}  // namespace tarnloft
