#include "quickgrab/panel/GrabContent.h"

#include "model/ShownText.h"
#include "pictures/HexColor.h"

#include <utility>

namespace tarnloft {
namespace {

using Kind = GrabKind::Kind;

QString groupTitle(Kind kind) {
  switch (kind) {
    case Kind::Color: return QStringLiteral("Colors");
    case Kind::Media: return QStringLiteral("Logos & Images");
    case Kind::Font: return QStringLiteral("Type");
    case Kind::Gradient: return QStringLiteral("Gradients");
    default: return QStringLiteral("Code");
  }
}

size_t countOf(const SectionBlock& block, Kind kind) {
  switch (kind) {
    case Kind::Color: return block.colors.size();
    case Kind::Media: return block.media.size();
    case Kind::Font: return block.fonts.size();
    case Kind::Gradient: return block.gradients.size();
    default: return block.codes.size();
  }
}

// A row shows one line of it.
QString beginningOf(const QString& snippet) {
  constexpr qsizetype most = 120;
  return snippet.left(most).simplified();
}

}  // namespace

GrabContent::GrabContent(std::vector<SectionBlock> blocks) : blocks_(std::move(blocks)) {}

QUuid GrabContent::idOf(size_t place) const {
  const PlacedThing& thing = layout_.things[place];
  const SectionBlock& block = blocks_[thing.block];
  const size_t i = thing.index;
  switch (thing.kind) {
    case Kind::Color: return block.colors[i].id;
    case Kind::Media: return block.media[i].id;
    case Kind::Font: return block.fonts[i].id;
    case Kind::Gradient: return block.gradients[i].id;
    case Kind::Code: return block.codes[i].id;
    default: break;
  }
  // A section's may be an item's as well.
  QUuid id = block.id;
  id.data1 ^= 0x5a17u + (thing.kind == Kind::GroupHeader ? 1 + thing.index : 0);
  return id;
}

GrabThing GrabContent::thing(size_t place, const Look& look) const {
  const PlacedThing& at = layout_.things[place];
  const SectionBlock& block = blocks_[at.block];
  GrabThing thing;
  thing.id = idOf(place);
  thing.kind = at.kind;
  thing.place = int(place);
  thing.room = at.room;
  switch (at.kind) {
    case Kind::BlockHeader:
      thing.name =
          block.name.isEmpty() ? QStringLiteral("Untitled Section") : shownText(block.name);
      thing.detail = QString::number(block.count());
      break;
    case Kind::GroupHeader:
      thing.name = groupTitle(Kind(at.index));
      thing.detail = QString::number(countOf(block, Kind(at.index)));
      break;
    case Kind::Color: {
      const ColorEntry& entry = block.colors[at.index];
      thing.name = shownText(entry.name.value_or(entry.hex.toUpper()));
      thing.help = QStringLiteral("Click to copy ") + thing.name;
      thing.detail = shownText(ColorUtil::formatted(entry.hex, look.colorFormat));
      thing.color = shownColor(entry.hex);
      break;
    }
    case Kind::Media: {
      const MediaEntry& entry = block.media[at.index];
      thing.name = shownText(entry.name);
      thing.help = QStringLiteral("Drag out to use %1 as a file").arg(thing.name);
      thing.backdrop = Backdrop::of(entry.background);
      if (look.files) thing.source = look.files->assetPath(entry.asset).value_or(QString());
      break;
    }
    case Kind::Font: {
      const FontEntry& entry = block.fonts[at.index];
      thing.name = shownText(entry.name);
      thing.detail = shownText(entry.weight.value_or(QString()));
      thing.source = shownText(entry.family);
      thing.help = QStringLiteral("Click to copy the font name");
      break;
    }
    case Kind::Gradient: {
      const GradientEntry& entry = block.gradients[at.index];
      thing.name = shownText(entry.name);
      thing.gradient.value = entry.value;
      thing.help = QStringLiteral("Click to copy the CSS gradient");
      break;
    }
    case Kind::Code: {
      const CodeEntry& entry = block.codes[at.index];
      thing.name = shownText(entry.name);
      thing.detail = beginningOf(entry.snippet);
      thing.help = QStringLiteral("Click to copy the snippet");
      break;
    }
  }
  return thing;
}

const PlacedThing* GrabContent::thingAt(int place) const {
  if (place < 0 || size_t(place) >= layout_.things.size()) return nullptr;
  return &layout_.things[size_t(place)];
}

std::optional<GrabbedText> GrabContent::copyOf(int place, ColorCopyFormat format) const {
  const PlacedThing* const thing = thingAt(place);
  if (!thing) return std::nullopt;
  const SectionBlock& block = blocks_[thing->block];
  const auto copied = [](const QString& text, const QString& named) {
    return GrabbedText{text, QStringLiteral("Copied ") + named};
  };
  switch (thing->kind) {
    case Kind::Color: {
      const QString text = ColorUtil::formatted(block.colors[thing->index].hex, format);
      return copied(text, text);
    }
    case Kind::Font: {
      const QString& family = block.fonts[thing->index].family;
      return copied(family, family);
    }
    case Kind::Gradient: {
      const GradientValue& value = block.gradients[thing->index].value;
      if (value.hasCss()) return copied(value.cssString(), QStringLiteral("CSS gradient"));
      return GrabbedText{std::nullopt, QStringLiteral("This gradient can’t be written as CSS")};
    }
    case Kind::Code: return copied(block.codes[thing->index].snippet, QStringLiteral("snippet"));
    default: return std::nullopt;
  }
}

const MediaEntry* GrabContent::media(int place) const {
  const PlacedThing* const thing = thingAt(place);
  if (!thing || thing->kind != Kind::Media) return nullptr;
  return &blocks_[thing->block].media[thing->index];
}

int GrabContent::colorPlace(int number) const {
  int count = 0;
  for (size_t place = 0; place < layout_.things.size(); ++place) {
    if (layout_.things[place].kind == Kind::Color && ++count == number) return int(place);
  }
  return -1;
}

}  // namespace tarnloft
