#include "quickgrab/panel/SectionBlocks.h"

#include "model/FileName.h"
#include "model/ItemPayload.h"

namespace tarnloft {
namespace {

QString imageName(const ImagePayload& image) {
  if (image.name) return *image.name;
  const QString& file = image.asset.originalName;
  const QString base = withoutPathExtension(file);
  const bool isAllExtension = file.lastIndexOf(QLatin1Char('.')) == 0;
  return base.isEmpty() || isAllExtension ? QStringLiteral("Image") : base;
}

void append(SectionBlock& block, const Item& item, const GrabbedKinds& kinds) {
  const QUuid& id = item.id;
  std::visit(
      Overloaded{
          [&](const ColorPayload& color) {
            if (kinds.colors) block.colors.push_back({id, color.value.hex, color.value.name});
          },
          [&](const LogoPayload& logo) {
            if (!kinds.logos) return;
            const auto primary = logo.value.primary();
            if (!primary) return;
            block.media.push_back({id, logo.value.name, primary->asset, primary->background});
          },
          [&](const ImagePayload& image) {
            if (!kinds.logos) return;
            block.media.push_back({id, imageName(image), image.asset, item.imageBackground});
          },
          [&](const FontPayload& font) {
            const FontValue& value = font.value;
            if (!kinds.type) return;
            block.fonts.push_back(
                {id, value.name.value_or(value.family), value.family, value.weight});
          },
          [&](const GradientPayload& gradient) {
            const GradientValue& value = gradient.value;
            if (!kinds.gradients) return;
            block.gradients.push_back({id, value.name.value_or(QStringLiteral("Gradient")), value});
          },
          [&](const CodePayload& code) {
            const CodeValue& value = code.value;
            if (!kinds.code) return;
            block.codes.push_back({id, value.name.value_or(value.language), value.snippet});
          },
          [](const auto&) {},  // nothing of it can be grabbed
      },
      item.payload);
}

}  // namespace

size_t SectionBlock::count() const {
  return colors.size() + media.size() + fonts.size() + gradients.size() + codes.size();
}

int SectionBlock::enabledTypeCount() const {
  return int(!colors.empty()) + int(!media.empty()) + int(!fonts.empty()) +
         int(!gradients.empty()) + int(!codes.empty());
}

std::vector<SectionBlock> sectionBlocks(const QList<Section>& sections, const GrabbedKinds& kinds,
                                        const std::function<bool(qsizetype, qsizetype)>& isMatch) {
  std::vector<SectionBlock> blocks;
  for (qsizetype s = 0; s < sections.size(); ++s) {
    const Section& section = sections.at(s);
    SectionBlock block{section.id, section.name, {}, {}, {}, {}, {}};
    qsizetype i = 0;
    for (const Item& item : section.items) {
      if (!isMatch || isMatch(s, i)) append(block, item, kinds);
      ++i;
    }
    if (block.count() > 0) blocks.push_back(std::move(block));
  }
  return blocks;
}

}  // namespace tarnloft
