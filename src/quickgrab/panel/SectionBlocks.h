#pragma once

#include "model/Section.h"

#include <functional>
#include <vector>

namespace tarnloft {

// What the panel shows of an item; each carries the item's id.
struct ColorEntry {
  QUuid id;
  QString hex;
  std::optional<QString> name;

  bool operator==(const ColorEntry&) const = default;
};

struct MediaEntry {
  QUuid id;
  QString name;
  AssetRef asset;  // the image's, or that of the logo's primary variant
  std::optional<ImageBackground> background = std::nullopt;  // likewise

  bool operator==(const MediaEntry&) const = default;
};

struct FontEntry {
  QUuid id;
  QString name;
  QString family;
  std::optional<QString> weight;

  bool operator==(const FontEntry&) const = default;
};

struct GradientEntry {
  QUuid id;
  QString name;
  GradientValue value;

  bool operator==(const GradientEntry&) const = default;
};

struct CodeEntry {
  QUuid id;
  QString name;
  QString snippet;

  bool operator==(const CodeEntry&) const = default;
};

// What can be grabbed of one section, in the order in which it is shown.
struct SectionBlock {
  QUuid id;  // the section's
  QString name;
  std::vector<ColorEntry> colors;
  std::vector<MediaEntry> media;
  std::vector<FontEntry> fonts;
  std::vector<GradientEntry> gradients;
  std::vector<CodeEntry> codes;

  bool operator==(const SectionBlock&) const = default;

  size_t count() const;
  // How many of the lists aren't empty.
  int enabledTypeCount() const;
};

// Which kinds of items appear; see `MenuBarPrefs`.
struct GrabbedKinds {
  bool colors = true;
  bool logos = true;
  bool type = true;
  bool gradients = true;
  bool code = true;

  bool operator==(const GrabbedKinds&) const = default;
};

// Reduces sections to what can be grabbed at once. `isMatch` is asked for an item by the places of
// its section and of itself in that; none matches every item. A section without entries gives no
// block.
std::vector<SectionBlock> sectionBlocks(
    const QList<Section>& sections, const GrabbedKinds& kinds,
    const std::function<bool(qsizetype section, qsizetype item)>& isMatch = nullptr);

}  // namespace tarnloft
