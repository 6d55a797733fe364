#include "entry/selftest/Checks.h"
#include "model/Json.h"
#include "publish/PaletteExport.h"

#include <algorithm>

namespace tarnloft::SelfTest {
namespace {

AssetRef asset(const char* filename, const char* originalName) {
  return {QString::fromUtf8(filename), QString::fromUtf8(originalName)};
}

LogoVariant variant(const AssetRef& file, LogoRole role,
                    std::optional<ImageBackground> background = std::nullopt) {
  return {QUuid::createUuid(), file, role, background};
}

Emblem emblem(Emblem::Kind kind, const char* emoji, const char* colorHex) {
  Emblem mark;
  mark.kind = kind;
  mark.emoji = QString::fromUtf8(emoji);
  mark.colorHex = QString::fromUtf8(colorHex);
  return mark;
}

Brand brandOfEightKinds() {
  Brand brand = Brand::create(QStringLiteral("Acme"));
  brand.createdAt = brand.updatedAt = std::chrono::floor<std::chrono::seconds>(systemNow());
  brand.emblem = emblem(Emblem::Kind::emoji, "🏔", "#4C6FFF");
  Section& section = brand.sections.first();
  section.emblem = emblem(Emblem::Kind::color, "", "#123456");
  const GradientStop first{QUuid::createUuid(), QStringLiteral("#4C6FFF"), 0};
  const GradientStop last{QUuid::createUuid(), QStringLiteral("#FFFFFF"), 1};
  FontValue font{QStringLiteral("Inter"), QStringLiteral("Bold"), {}, {}, {}};
  for (const ItemPayload& payload : {
           ItemPayload(HeaderPayload{QStringLiteral("Basics"), 1}),
           ItemPayload(TextPayload{QStringLiteral("Be calm.")}),
           ItemPayload(ColorPayload{{QStringLiteral("#4C6FFF"), QStringLiteral("Blue"), {}}}),
           ItemPayload(GradientPayload{{{first, last}, 90, QStringLiteral("Fade")}}),
           ItemPayload(ImagePayload{asset("1.png", "Mark.png"), {}}),
           ItemPayload(VideoPayload{asset("2.mp4", "Reel.mp4"), QStringLiteral("Reel")}),
           ItemPayload(FontPayload{font}),
           ItemPayload(CodePayload{{QStringLiteral("css"), QStringLiteral("a { }"), {}}}),
       }) {
    section.items.append(Item::create(payload));
  }
  return brand;
}

bool sameKinds(const SharedList<Item>& a, const SharedList<Item>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Item& x, const Item& y) {
    return x.payload.index() == y.payload.index();
  });
}

LogoValue acmeMark() {
  return {QStringLiteral("Acme Mark"),
          {variant(asset("m.svg", "Mono.svg"), LogoRole::mono),
           variant(asset("p.png", "Primary.png"), LogoRole::primary)}};
}

template <Record R>
Result<R> codedAnew(const R& record) {
  return encode(record).and_then(decode<R>);
}

}  // namespace

void checkBrandStructure(Report& report) {
  const Brand brand = brandOfEightKinds();
  const auto read = codedAnew(brand);
  if (!read) return report.setupFailed(QStringLiteral("brand codable"), read.error());
  const Section& before = brand.sections.first();
  const Section& after = read->sections.first();
  report.check(QStringLiteral("brand structure round-trips"), *read == brand);
  report.check(QStringLiteral("all 8 item kinds survive"),
               after.items.size() == 8 && sameKinds(before.items, after.items));
  report.check(QStringLiteral("emblems round-trip"),
               read->emblem == brand.emblem && after.emblem == before.emblem);
}

void checkLogoSet(Report& report) {
  const LogoValue mark = acmeMark();
  const Item item = Item::create(LogoPayload{mark});
  LogoValue noPrimary = mark;
  noPrimary.variants.removeLast();
  const auto read = codedAnew(mark);
  const auto primary = mark.primary(), fallback = noPrimary.primary();
  report.check(QStringLiteral("logo primary picks primary role"),
               primary && primary->asset.filename == QStringLiteral("p.png"));
  report.check(QStringLiteral("logo displayName is set name"),
               item.displayName() == QStringLiteral("Acme Mark"));
  report.check(QStringLiteral("logo typeLabel is Logo"),
               item.typeLabel() == QStringLiteral("Logo"));
  report.check(QStringLiteral("logo is exportable"), item.isExportable());
  report.check(QStringLiteral("logo search matches role label"),
               item.searchTokens().contains(QStringLiteral("Monochrome")));
  report.check(QStringLiteral("logo primary falls back to first"),
               fallback && fallback->asset.filename == QStringLiteral("m.svg"));
  report.check(QStringLiteral("empty logo has no primary"), !LogoValue{}.primary());
  if (!read) return report.setupFailed(QStringLiteral("logo Codable"), read.error());
  report.check(QStringLiteral("logo Codable round-trips"), *read == mark);
}

void checkSpotColor(Report& report) {
  const QString spot = QStringLiteral("PMS 021 C");
  const ColorValue color{QStringLiteral("#FE5000"), QStringLiteral("Orange"), spot};
  const Item item = Item::create(ColorPayload{color});
  Section section = Section::create(QStringLiteral("Colors"));
  section.items.append(item);
  report.check(QStringLiteral("spot is searchable"), item.searchTokens().contains(spot));
  if (const auto read = codedAnew(color)) {
    report.check(QStringLiteral("spot round-trips"), read->spot == spot);
  } else {
    report.setupFailed(QStringLiteral("spot decode"), read.error());
  }
  const auto old = decode<ColorValue>(QByteArrayLiteral("{\"hex\":\"#FFFFFF\"}"));
  report.check(QStringLiteral("old color json (no spot) still decodes"), old && !old->spot);
  report.check(QStringLiteral("spot in palette JSON"),
               PaletteExport::format(PaletteExport::entries(section), PaletteExport::Format::json)
                   .contains(QStringLiteral("\"spot\": \"PMS 021 C\"")));
}

void checkUsageNotes(Report& report) {
  Item item = Item::create(ColorPayload{{QStringLiteral("#123456"), {}, {}}});
  const QList<UsageNote> two{
      {QUuid::createUuid(), UsageKind::doRule, QStringLiteral("Keep clear space")},
      {QUuid::createUuid(), UsageKind::dontRule, QStringLiteral("Don't stretch")}};
  item.setUsageNotes(two);
  report.check(QStringLiteral("usageNotes setter stores"), item.usageNotes() == two);
  item.setUsageNotes({});
  report.check(QStringLiteral("empty usageNotes clears to nil"), !item.notes.has_value());
  item.setUsageNotes({{QUuid::createUuid(), UsageKind::note, QStringLiteral("Hello")}});
  const auto read = codedAnew(item);
  report.check(QStringLiteral("usage notes round-trip"), read && read->notes == item.notes);
}

void checkUngrouping(Report& report) {
  const LogoValue logo{
      QStringLiteral("Logo"),
      {variant(asset("1.png", "Image.png"), LogoRole::primary, ImageBackground::white),
       variant(asset("2.png", "Image.png"), LogoRole::reversed, ImageBackground::dark)}};
  const QList<Item> items = logo.ungroupedImageItems();
  const LogoValue single{logo.name, {logo.variants.first()}};
  const QList<Item> one = single.ungroupedImageItems();
  const auto everyPair = [&](auto&& test) {
    return std::equal(items.begin(), items.end(), logo.variants.begin(), logo.variants.end(), test);
  };
  report.check(QStringLiteral("ungroup yields one item per variant"), items.size() == 2);
  report.check(QStringLiteral("ungroup preserves order + asset"),
               everyPair([](const Item& item, const LogoVariant& from) {
                 return item.exportableAsset() == from.asset;
               }));
  report.check(QStringLiteral("ungroup preserves each backdrop"),
               everyPair([](const Item& item, const LogoVariant& from) {
                 return item.imageBackground == from.background;
               }));
  report.check(QStringLiteral("ungroup disambiguates same-named files by role"),
               items.value(0).displayName() == QStringLiteral("Image · Primary") &&
                   items.value(1).displayName() == QStringLiteral("Image · Reversed"));
  report.check(QStringLiteral("single-variant ungroup keeps the plain name"),
               one.size() == 1 && one.first().displayName() == QStringLiteral("Image"));
  report.check(QStringLiteral("empty set ungroups to nothing"),
               LogoValue{}.ungroupedImageItems().isEmpty());
}

void checkExportableAssets(Report& report) {
  const AssetRef picture = asset("1.png", "1.png"), mark = asset("Logo.png", "Logo.png");
  const AssetRef fontFile = asset("f.otf", "f.otf");
  const Item image = Item::create(ImagePayload{picture, {}});
  const Item logo =
      Item::create(LogoPayload{{QStringLiteral("Logo"), {variant(mark, LogoRole::primary)}}});
  const Item font = Item::create(FontPayload{{QStringLiteral("Demo Sans"), {}, {}, fontFile, {}}});
  const Item color = Item::create(ColorPayload{{QStringLiteral("#123456"), {}, {}}});
  const Item emptyLogo = Item::create(LogoPayload{});
  report.check(QStringLiteral("image exports its asset"), image.exportableAsset() == picture);
  report.check(QStringLiteral("logo exports its primary asset"), logo.exportableAsset() == mark);
  report.check(QStringLiteral("font-with-file exports its asset"),
               font.exportableAsset() == fontFile);
  report.check(QStringLiteral("color has nothing to export"), !color.exportableAsset());
  report.check(QStringLiteral("empty logo has nothing to export"), !emptyLogo.exportableAsset());
  for (const Item& item : {image, logo, font, color, emptyLogo}) {
    report.check(QStringLiteral("isExportable matches exportableAsset for ") + item.typeLabel(),
                 item.isExportable() == item.exportableAsset().has_value());
  }
}

}  // namespace tarnloft::SelfTest
