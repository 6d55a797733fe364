#include "publish/BrandPageItems.h"

#include "publish/ColorUtil.h"
#include "publish/PageMarkup.h"

namespace tarnloft::BrandPageExporter {
namespace {

enum class Media { image, video };

QByteArrayView marker(UsageKind kind) {
  switch (kind) {
    case UsageKind::doRule: return "<span class=\"do\">✓</span>";
    case UsageKind::dontRule: return "<span class=\"dont\">✕</span>";
    case UsageKind::note: return "<span class=\"info\">•</span>";
  }
  Q_UNREACHABLE();
}

QByteArrayView frameBackground(std::optional<ImageBackground> background) {
  switch (background.value_or(ImageBackground::checkerboard)) {
    case ImageBackground::white: return "background:#fff;";
    case ImageBackground::dark: return "background:#16161a;";
    case ImageBackground::checkerboard: break;
  }
  return "background: repeating-conic-gradient(#f4f4f6 0% 25%, #fff 0% 50%) 50% / 16px 16px;";
}

void mediaHTML(Media media, const AssetRef& asset, const std::optional<QString>& name,
               const QList<UsageNote>& notes, const PageSource& source, PageSink& sink) {
  const QByteArray label = escaped(name.value_or(asset.originalName));
  const bool image = media == Media::image;
  const QByteArray element = image ? "<img alt=\"" + label + "\" src=\"" : "<video controls src=\"";
  const auto url = writeDataURLBehind(
      "      <div class=\"asset\">\n        <div class=\"frame\">" + element, asset, source, sink);
  if (!url) {
    sink << "      <div class=\"asset\"><div class=\"frame\">" << label << "</div></div>";
    return;
  }
  sink << (image ? "\">" : "\"></video>") << "</div>\n"
       << "        <div class=\"meta\"><span>" << label << "</span><a href=\"" << *url
       << "\" download=\"" << escaped(asset.originalName) << "\">Download</a></div>\n"
       << "        " << notesHTML(notes) << "\n"
       << "      </div>";
}

void variantHTML(const LogoVariant& variant, const PageSource& source, PageSink& sink) {
  const QByteArray name = escaped(variant.asset.originalName);
  sink << "      <div class=\"logo-variant\">\n"
       << "        <div class=\"logo-frame\" style=\"" << frameBackground(variant.background)
       << "\">";
  const auto url =
      writeDataURLBehind("<img alt=\"" + name + "\" src=\"", variant.asset, source, sink);
  sink << (url ? QByteArray("\">") : name) << "</div>\n"
       << "        <div class=\"logo-meta\"><span class=\"role\">" << escaped(label(variant.role))
       << "</span>";
  if (url) sink << "<a href=\"" << *url << "\" download=\"" << name << "\">Download</a>";
  sink << "</div>\n      </div>";
}

QByteArray badge(const QString& hex) {
  const auto grade = ColorUtil::bestGrade(hex);
  return grade ? "<span class=\"badge\">" + grade->toUtf8() + "</span>" : QByteArray();
}

QByteArray rgbLine(const QString& hex) {
  const auto color = ColorUtil::nsColor(hex);
  return color ? ColorUtil::rgbNotation(*color).toUtf8() : QByteArray();
}

// Not the notation that is copied: no parentheses and no percent signs.
QByteArray cmykLine(const QString& hex) {
  const auto color = ColorUtil::cmyk(hex);
  if (!color) return {};
  return QStringLiteral("CMYK %1 %2 %3 %4")
      .arg(color->c)
      .arg(color->m)
      .arg(color->y)
      .arg(color->k)
      .toUtf8();
}

QByteArray spotBlock(const std::optional<QString>& spot) {
  if (!spot || spot->isEmpty()) return {};
  return "<div class=\"val spot\">" + escaped(*spot) + "</div>";
}

}  // namespace

void sectionHTML(const Section& section, const PageSource& source, PageSink& sink) {
  const QString label = section.name.isEmpty() ? QStringLiteral("Untitled Section") : section.name;
  sink << "  <section class=\"band\">\n    <h2>" << escaped(label) << "</h2>\n"
       << "    <div class=\"grid\">\n";
  QByteArrayView separator;
  for (const Item& item : section.items) {
    sink << separator;
    itemHTML(item, source, sink);
    sink.tellItems(1);
    separator = "\n";
  }
  sink << "\n    </div>\n  </section>";
}

void itemHTML(const Item& item, const PageSource& source, PageSink& sink) {
  const QList<UsageNote> notes = item.usageNotes();
  std::visit(Overloaded{
                 [&](const HeaderPayload& header) {
                   sink << "      <div class=\"full heading\">" << escaped(header.text) << "</div>";
                 },
                 [&](const TextPayload& text) {
                   sink << "      <div class=\"full textblock\">" << escaped(text.body) << "</div>";
                 },
                 [&](const ColorPayload& color) { colorHTML(color.value, notes, sink); },
                 [&](const GradientPayload& gradient) { gradientHTML(gradient.value, sink); },
                 [&](const ImagePayload& image) {
                   mediaHTML(Media::image, image.asset, image.name, notes, source, sink);
                 },
                 [&](const VideoPayload& video) {
                   mediaHTML(Media::video, video.asset, video.name, notes, source, sink);
                 },
                 [&](const FontPayload& font) { fontHTML(font.value, source, sink); },
                 [&](const CodePayload& code) {
                   sink << "      <div class=\"full\"><pre class=\"code\">"
                        << escaped(code.value.snippet) << "</pre></div>";
                 },
                 [&](const LogoPayload& logo) { logoHTML(logo.value, source, notes, sink); },
             },
             item.payload);
}

void colorHTML(const ColorValue& color, const QList<UsageNote>& notes, PageSink& sink) {
  const QString upper = plainColor(color.hex.toUpper());
  const QByteArray hex = upper.toUtf8();
  sink << "      <div class=\"swatch\" onclick=\"copyHex('" << hex << "')\" title=\"Click to copy "
       << hex << "\">\n"
       << "        <div class=\"chip\" style=\"background: " << hex << "\"></div>\n"
       << "        <div class=\"meta\">\n"
       << "          <div class=\"name\">" << escaped(color.name.value_or(upper)) << badge(upper)
       << "</div>\n"
       << "          <div class=\"val\"><code>" << hex << "</code></div>\n"
       << "          <div class=\"val\">" << rgbLine(upper) << "</div>\n"
       << "          <div class=\"val\">" << cmykLine(upper) << "</div>\n"
       << "          " << spotBlock(color.spot) << "\n"
       << "        </div>\n"
       << "        " << notesHTML(notes) << "\n"
       << "      </div>";
}

void gradientHTML(GradientValue gradient, PageSink& sink) {
  for (GradientStop& stop : gradient.stops) stop.hex = plainColor(stop.hex.toUpper());
  const QByteArray label = escaped(gradient.name.value_or(QStringLiteral("Gradient")));
  const QString css = gradient.cssString();
  sink << "      <div class=\"swatch\" title=\"" << label << "\">\n"
       << "        <div class=\"chip\" style=\"background: " << css.toUtf8() << "\"></div>\n"
       << "        <div class=\"meta\"><div class=\"name\">" << label << "</div><div class=\"val\">"
       << escaped(css) << "</div></div>\n"
       << "      </div>";
}

void fontHTML(const FontValue& font, const PageSource& source, PageSink& sink) {
  QString sample = font.sampleText.value_or(QString());
  if (sample.isEmpty()) sample = QStringLiteral("The quick brown fox jumps");
  // The family's quotes end the attribute early, and its words become attributes without values.
  // Pages have always stood so.
  sink << "      <div class=\"type full\">\n"
       << "        <div class=\"spec\" style=\"font-family: " << cssFamily(font.family).toUtf8()
       << ", system-ui;\">" << escaped(sample) << "</div>\n"
       << "        <div class=\"label\">" << escaped(plainFamily(font.family));
  if (font.weight) sink << " · " << escaped(*font.weight);
  if (font.asset && writeDataURLBehind(" · <a href=\"", *font.asset, source, sink)) {
    sink << "\" download=\"" << escaped(font.asset->originalName) << "\">Download font</a>";
  }
  sink << "</div>\n      </div>";
}

void logoHTML(const LogoValue& logo, const PageSource& source, const QList<UsageNote>& notes,
              PageSink& sink) {
  sink << "      <div class=\"full logo-set\">\n"
       << "        <div class=\"logo-title\">" << escaped(logo.name) << "</div>\n"
       << "        <div class=\"logo-grid\">\n";
  QByteArrayView separator;
  for (const LogoVariant& variant : logo.variants) {
    sink << separator;
    variantHTML(variant, source, sink);
    separator = "\n";
  }
  sink << "\n        </div>\n        " << notesHTML(notes) << "\n      </div>";
}

QByteArray notesHTML(const QList<UsageNote>& notes) {
  if (notes.isEmpty()) return {};
  QByteArray list = "<ul class=\"usage\">";
  for (const UsageNote& note : notes) {
    list += "<li>";
    list += marker(note.kind);
    list += escaped(note.text) + "</li>";
  }
  return list + "</ul>";
}

}  // namespace tarnloft::BrandPageExporter
