#include "testing/RandomBrand.h"

#include "model/Uuid.h"

namespace tarnloft {

template <class E>
E RandomBrand::anyOf() {
  const auto cases = allCases<E>();
  return cases[size_t(below(int(cases.size())))];
}

QUuid RandomBrand::id() {
  return QUuid(random_.generate(), ushort(random_.generate()), ushort(random_.generate()),
               uchar(below(256)), uchar(below(256)), uchar(below(256)), uchar(below(256)),
               uchar(below(256)), uchar(below(256)), uchar(below(256)), uchar(below(256)));
}

QString RandomBrand::text() {
  static const QStringList odd{QString(),
                               "a\"b\\c/d",
                               "tab\tline\n",
                               "\u0001\u001f\u007f\u2028",
                               "Überzug ✓",
                               QString::fromUtf8("👩‍👩‍👧 & <co>"),
                               QString(QChar(0xFEFF)) + u'x'};
  if (below(8) == 0) return odd.at(below(int(odd.size())));
  static const QStringList words{"Harbour", "Lane", "primary", "Mark"};
  QString result;
  for (int count = below(4); count >= 0; --count) {
    result += words.at(below(int(words.size()))) + QLatin1Char(' ');
  }
  return result + QString::number(below(1000));
}

QString RandomBrand::hex() {
  return QString("#%1").arg(below(0x1000000), 6, 16, QLatin1Char('0')).toUpper();
}

AssetRef RandomBrand::asset() { return {canonicalString(id()) + ".png", text() + ".png"}; }

Emblem RandomBrand::emblem() {
  return {anyOf<Emblem::Kind>(), maybe([&] { return text(); }), maybe([&] { return text(); }),
          maybe([&] { return hex(); }), maybe([&] { return asset(); })};
}

QList<UsageNote> RandomBrand::notes() {
  QList<UsageNote> list;
  for (int count = below(3); count >= 0; --count)
    list << UsageNote{id(), anyOf<UsageKind>(), text()};
  return list;
}

GradientValue RandomBrand::gradient() {
  GradientValue value{{}, below(720) - 360 + below(100) / 100.0, maybe([&] { return text(); })};
  for (int count = below(4); count >= 0; --count) {
    value.stops << GradientStop{id(), hex(), random_.generateDouble()};
  }
  return value;
}

LogoValue RandomBrand::logo() {
  LogoValue value{text(), {}};
  for (int count = below(4); count > 0; --count) {
    value.variants << LogoVariant{id(), asset(), anyOf<LogoRole>(),
                                  maybe([&] { return anyOf<ImageBackground>(); })};
  }
  return value;
}

FontValue RandomBrand::font() {
  return {text(), maybe([&] { return text(); }), maybe([&] { return text(); }),
          maybe([&] { return asset(); }), maybe([&] { return text(); })};
}

ItemPayload RandomBrand::payload() {
  const auto name = [&] { return maybe([&] { return text(); }); };
  switch (below(9)) {
    case 0: return HeaderPayload{text(), below(4)};
    case 1: return TextPayload{text()};
    case 2: return ColorPayload{{hex(), name(), name()}};
    case 3: return GradientPayload{gradient()};
    case 4: return ImagePayload{asset(), name()};
    case 5: return VideoPayload{asset(), name()};
    case 6: return FontPayload{font()};
    case 7: return CodePayload{{text(), text(), name()}};
    default: return LogoPayload{logo()};
  }
}

Item RandomBrand::item() {
  Item item{id(), payload(), maybe([&] { return anyOf<ImageBackground>(); }), std::nullopt};
  if (below(4) == 0) item.notes = notes();
  return item;
}

Section RandomBrand::section(int items) {
  Section section{id(), text(), maybe([&] { return emblem(); }), {}};
  for (int i = 0; i < items; ++i) section.items.append(item());
  return section;
}

Brand RandomBrand::brand(int sections, int itemsEach) {
  const auto moment = [&] { return Timestamp(std::chrono::seconds(random_.generate())); };
  Brand brand{id(),
              text(),
              maybe([&] { return emblem(); }),
              maybe([&] { return hex(); }),
              maybe([&] { return hex(); }),
              moment(),
              moment(),
              1 + below(3),
              {}};
  for (int i = 0; i < sections; ++i) brand.sections << section(itemsEach);
  return brand;
}

void RandomBrand::edit(Brand& brand) {
  const auto at = [&] { return below(int(brand.sections.size())); };
  if (brand.sections.isEmpty()) brand.sections << section(1);
  SharedList<Item>& items = brand.sections[at()].items;
  const int place = below(int(items.size()) + 1);
  switch (below(9)) {
    case 0: return items.insert(place, item());
    case 1: brand.sections.insert(at(), section(below(3))); return;
    case 2: return brand.sections.removeAt(at());
    case 3: return brand.sections.move(at(), at());
    case 4: brand.sections[at()].name = item().displayName(); return;
    case 5: brand.name = item().displayName(); return;
  }
  if (place == items.size()) return;
  switch (below(3)) {
    case 0: items.takeAt(place); return;
    case 1: items[place].payload = item().payload; return;
    case 2: {
      const Item moved = items.takeAt(place);
      SharedList<Item>& target = brand.sections[at()].items;
      return target.insert(below(int(target.size()) + 1), moved);
    }
  }
}

Brand RandomBrand::edited(Brand brand) {
  for (int count = below(4); count >= 0; --count) edit(brand);
  return brand;
}

}  // namespace tarnloft
