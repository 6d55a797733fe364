#include "sheets/versions/VersionSummary.h"

#include "document/PackageVersions.h"
#include "model/ShownText.h"

#include <QHash>

#include <array>

namespace tarnloft::VersionSummary {
namespace {

struct Noun {
  const char* one;
  const char* many;
};

constexpr Noun sectionNoun{"section", "sections"};
constexpr Noun itemNoun{"item", "items"};
constexpr size_t kinds = std::variant_size_v<ItemPayload>;
// In the order of the payload's cases.
constexpr std::array<Noun, kinds> kindNouns{{{"heading", "headings"},
                                             {"text", "texts"},
                                             {"color", "colors"},
                                             {"gradient", "gradients"},
                                             {"image", "images"},
                                             {"video", "videos"},
                                             {"font", "fonts"},
                                             {"code snippet", "code snippets"},
                                             {"logo", "logos"}}};

using KindCounts = std::array<qsizetype, kinds>;

QString counted(qsizetype count, const Noun& noun) {
  return QString::number(count) + QLatin1Char(' ') +
         QLatin1String(count == 1 ? noun.one : noun.many);
}

KindCounts kindCounts(const Brand& brand) {
  KindCounts counts{};
  for (const Section& section : brand.sections) {
    for (const Item& item : section.items) ++counts.at(item.payload.index());
  }
  return counts;
}

qsizetype itemCount(const Brand& brand) {
  qsizetype count = 0;
  for (const Section& section : brand.sections) count += section.items.size();
  return count;
}

// Items that both have, but not alike.
qsizetype changedItems(const Brand& version, const Brand& now) {
  QHash<QUuid, const Item*> present;
  for (const Section& section : now.sections) {
    for (const Item& item : section.items) present.insert(item.id, &item);
  }
  qsizetype changed = 0;
  for (const Section& section : version.sections) {
    for (const Item& item : section.items) {
      const Item* const other = present.value(item.id);
      if (other && !(*other == item)) ++changed;
    }
  }
  return changed;
}

void appendDifference(QStringList& parts, qsizetype then, qsizetype now, const Noun& noun) {
  if (then > now) parts << counted(then - now, noun) + QStringLiteral(" more");
  if (then < now) parts << counted(now - then, noun) + QStringLiteral(" less");
}

}  // namespace

QString counts(const Brand& brand) {
  return counted(brand.sections.size(), sectionNoun) + QStringLiteral(", ") +
         counted(itemCount(brand), itemNoun);
}

QStringList differences(const Brand& version, const Brand& now) {
  if (isSameContent(version, now)) return {};
  QStringList lines;
  if (version.name != now.name) lines << QStringLiteral("Named “%1”").arg(shownText(version.name));
  QStringList parts;
  appendDifference(parts, version.sections.size(), now.sections.size(), sectionNoun);
  const KindCounts then = kindCounts(version), present = kindCounts(now);
  for (size_t kind = 0; kind < kinds; ++kind)
    appendDifference(parts, then.at(kind), present.at(kind), kindNouns.at(kind));
  if (!parts.isEmpty()) lines << parts.join(QStringLiteral(", "));
  if (const qsizetype changed = changedItems(version, now))
    lines << counted(changed, itemNoun) + QStringLiteral(" changed since");
  if (lines.isEmpty()) lines << QStringLiteral("Another order or look");
  return lines;
}

}  // namespace tarnloft::VersionSummary
