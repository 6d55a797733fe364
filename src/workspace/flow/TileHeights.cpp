#include "workspace/flow/TileHeights.h"

#include "controls/fields/LongText.h"
#include "controls/theme/Typography.h"
#include "publish/ColorUtil.h"
#include "workspace/tiles/TileFacts.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tarnloft::TileHeights {
namespace {

constexpr double detailGap = 8;  // between a caption and what stands under it
constexpr double variantGap = 8;

// A colour's lines under its swatch: each further one takes so much.
double colorLines(const ColorValue& color) {
  constexpr double padding = 10, title = 18, line = 14 + 6;
  const bool isNamed = color.name && !color.name->isEmpty();
  const bool hasSpot = color.spot && !color.spot->isEmpty();
  const int lines = int(isNamed) + (ColorUtil::nsColor(color.hex) ? 2 : 0) + int(hasSpot);
  return 2 * padding + title + lines * line;
}

double codeCard(const CodeValue& code, double width) {
  constexpr double padding = 8;
  static const QFontMetricsF metrics(monospacedFont(11));
  static const double advance = metrics.horizontalAdvance(QLatin1Char('0'));
  const qsizetype columns = std::max(1.0, std::floor((width - 2 * padding) / advance));
  qsizetype lines = 0;
  for (const QStringView line : QStringView(code.snippet).left(mostCode).split(QLatin1Char('\n'))) {
    lines += std::max<qsizetype>(1, (line.size() + columns - 1) / columns);
  }
  return std::ceil(double(lines) * metrics.lineSpacing()) + 2 * padding;
}

// Of what stands under a caption; none for most kinds.
struct DetailHeight {
  double width;

  double operator()(const GradientPayload& gradient) const {
    constexpr double row = 18, footer = 20;
    return double(gradient.value.stops.size()) * row + footer;
  }
  double operator()(const ImagePayload&) const { return specLine; }
  double operator()(const VideoPayload&) const { return specLine; }
  double operator()(const FontPayload&) const {
    constexpr double sample = 24, gap = 2;
    return sample + gap + specLine;
  }
  double operator()(const LogoPayload& logo) const {
    constexpr double variant = 40 + 2 + 12;
    const int columns = variantColumns(width);
    const qsizetype rows = (logo.value.variants.size() + columns - 1) / columns;
    return rows == 0 ? 0 : double(rows) * (variant + variantGap) - variantGap;
  }
  template <class Payload>
  double operator()(const Payload&) const {
    return 0;
  }

  static constexpr double specLine = 14;
};

double textBlock(const QString& body, double width) {
  static const QFontMetricsF metrics(interfaceFont(13));
  static const double letter = metrics.averageCharWidth();
  const double letters = std::max(1.0, std::min(width - 24, 680.0) / letter);
  double lines = 0;
  for (const QStringView paragraph : QStringView(LongText::firstPart(body)).split(u'\n'))
    lines += std::max(1.0, std::ceil(double(paragraph.size()) / letters));
  return std::ceil(lines * metrics.height());
}

double captionHeight(const Item& item) {
  const int named = FlowMetrics::captionGap + FlowMetrics::nameHeight;
  return TileFacts::hasSubcaption(item) ? named + FlowMetrics::subcaptionHeight : named;
}

}  // namespace

int variantColumns(double width) {
  constexpr double least = 72;
  return std::max(1, int((width + variantGap) / (least + variantGap)));
}

double of(const Item& item, const FlowMetrics& metrics, double width) {
  if (!metrics.expanded) return metrics.tileHeight + captionHeight(item);
  if (const auto* color = std::get_if<ColorPayload>(&item.payload)) {
    return metrics.tileHeight + colorLines(color->value);
  }
  if (const auto* code = std::get_if<CodePayload>(&item.payload)) {
    return std::max(metrics.tileHeight, codeCard(code->value, width)) + captionHeight(item);
  }
  const double detail = std::visit(DetailHeight{width}, item.payload);
  return metrics.tileHeight + captionHeight(item) + (detail > 0 ? detailGap + detail : 0);
}

double estimate(const Item& item, const FlowMetrics& metrics, double width, double columnWidth) {
  constexpr double heading = 34;
  if (const auto* text = std::get_if<TextPayload>(&item.payload))
    return textBlock(text->body, width);
  return TileFacts::isBlock(item) ? heading : of(item, metrics, columnWidth);
}

bool isEstimate(const Item& item, const FlowMetrics& metrics) {
  return metrics.expanded && std::holds_alternative<CodePayload>(item.payload);
}

}  // namespace tarnloft::TileHeights
