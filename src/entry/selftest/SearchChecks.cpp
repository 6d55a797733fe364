#include "entry/selftest/Checks.h"
#include "library/GlobalSearch.h"

#include <algorithm>

namespace tarnloft::SelfTest {
namespace {

const QString acmeURL = QStringLiteral("/tmp/A.tarnloft");
const QString betaURL = QStringLiteral("/tmp/B.tarnloft");

Brand brandWith(const QString& name, const QString& sectionName, const SharedList<Item>& items) {
  Brand brand = Brand::create(name);
  Section section = Section::create(sectionName);
  section.items = items;
  brand.sections = {section};
  return brand;
}

QList<BrandAtURL> twoBrands() {
  const AssetRef file{QStringLiteral("logo.png"), QStringLiteral("logo.png")};
  const Item image = Item::create(ImagePayload{file, QStringLiteral("Primary Logo")});
  const Item color = Item::create(
      ColorPayload{{QStringLiteral("#123456"), QStringLiteral("Brand Blue"), std::nullopt}});
  const Item gradient = Item::create(GradientPayload{{{}, 0, QStringLiteral("Sunset")}});
  return {{acmeURL, brandWith(QStringLiteral("Acme"), QStringLiteral("Logos"), {image, color})},
          {betaURL, brandWith(QStringLiteral("Beta"), QStringLiteral("Brand Colors"), {gradient})}};
}

}  // namespace

void checkGlobalSearch(Report& report) {
  const QList<BrandAtURL> brands = twoBrands();
  const auto finds = [&](const char* query, auto&& test) {
    const QList<SearchHit> hits = searchHits(brands, QString::fromUtf8(query));
    return std::any_of(hits.begin(), hits.end(), test);
  };
  const auto titled = [](const char* title) {
    return [title](const SearchHit& hit) { return hit.title == QString::fromUtf8(title); };
  };
  const auto anyHit = [](const SearchHit&) { return true; };
  report.check(QStringLiteral("global search finds item by name"),
               finds("logo", [](const SearchHit& hit) {
                 return hit.title == QStringLiteral("Primary Logo") && hit.brandURL == acmeURL;
               }));
  report.check(QStringLiteral("global search matches section 'Logos'"),
               finds("logo", [](const SearchHit& hit) {
                 return hit.isSection() && hit.sectionName == QStringLiteral("Logos");
               }));
  report.check(QStringLiteral("global search spans multiple brands"),
               finds("brand", [](const SearchHit& hit) { return hit.brandURL == acmeURL; }) &&
                   finds("brand", [](const SearchHit& hit) { return hit.brandURL == betaURL; }));
  report.check(QStringLiteral("global search is case-insensitive"),
               finds("PRIMARY", titled("Primary Logo")));
  report.check(QStringLiteral("empty query yields nothing"), !finds("   ", anyHit));
  report.check(QStringLiteral("no-match query yields nothing"), !finds("zzznope", anyHit));
  report.check(QStringLiteral("item matches by type label"),
               finds("color", [](const SearchHit& hit) {
                 return hit.typeLabel == QStringLiteral("Color");
               }));
  report.check(QStringLiteral("search finds color by hex"), finds("123456", titled("Brand Blue")));
  report.check(QStringLiteral("search finds color by partial hex"), finds("#1234", anyHit));
}

}  // namespace tarnloft::SelfTest
