#include "pictures/EmblemLook.h"

#include "document/Package.h"
#include "model/Characters.h"
#include "model/ShownText.h"
#include "pictures/HexColor.h"
#include "pictures/MonogramColor.h"
#include "publish/ColorUtil.h"

namespace tarnloft {
namespace {

constexpr qsizetype mostEmoji = 64;  // one may be several code points

using Ground = EmblemStyle::Ground;
using Ink = EmblemStyle::Ink;
using Mark = EmblemStyle::Mark;

Ink inkOn(const QString& hex) {
  switch (ColorUtil::contrastingText(hex)) {
    case TextColor::black: return Ink::Black;
    case TextColor::white: return Ink::White;
    case TextColor::primary: break;
  }
  return Ink::Primary;
}

EmblemLook fallback(const EmblemPlace& place) {
  const QString seed = shownText(place.monogramSeed).trimmed();
  if (seed.isEmpty()) return {Ground::NoGround, {}, Mark::Bare, place.defaultSymbol, Ink::Fallback};
  const QColor color = place.monogramColor.value_or(monogramColor(shownText(place.monogramSeed)));
  return {Ground::Filled, color, Mark::Monogram, firstCharacter(seed).toUpper(), Ink::White};
}

EmblemLook symbolLook(const Emblem& emblem, const EmblemPlace& place) {
  const QString symbol = emblem.symbolName.value_or(place.defaultSymbol);
  if (!emblem.colorHex) return {Ground::Quiet, {}, Mark::Symbol, symbol, Ink::Primary};
  return {Ground::Filled, shownColor(*emblem.colorHex), Mark::Symbol, symbol,
          inkOn(*emblem.colorHex)};
}

EmblemLook emojiLook(const Emblem& emblem) {
  const Ground ground = emblem.colorHex ? Ground::Filled : Ground::NoGround;
  return {ground, shownColor(emblem.colorHex.value_or(QString())), Mark::Emoji,
          emblem.emoji.value_or(QString()).left(mostEmoji), Ink::Primary};
}

EmblemLook imageLook(const Emblem& emblem, const EmblemPlace& place) {
  if (!emblem.asset) return fallback(place);
  const auto path = Package::assetPath(place.packageURL, *emblem.asset);
  if (!path) return fallback(place);
  return {Ground::Quiet, {}, Mark::Picture, *path, Ink::Primary};
}

}  // namespace

EmblemLook emblemLook(const std::optional<Emblem>& emblem, const EmblemPlace& place) {
  switch (emblem ? emblem->kind : Emblem::Kind::none) {
    case Emblem::Kind::symbol: return symbolLook(*emblem, place);
    case Emblem::Kind::emoji: return emojiLook(*emblem);
    case Emblem::Kind::color:
      return {Ground::Filled,
              shownColor(emblem->colorHex.value_or(QString())),
              Mark::NoMark,
              {},
              Ink::Primary};
    case Emblem::Kind::image: return imageLook(*emblem, place);
    case Emblem::Kind::none: break;
  }
  return fallback(place);
}

}  // namespace tarnloft
