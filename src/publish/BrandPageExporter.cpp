#include "publish/BrandPageExporter.h"

#include "document/AtomicWrite.h"
#include "document/Package.h"
#include "publish/BrandPageItems.h"
#include "publish/BrandPageText.h"
#include "publish/PageMarkup.h"

#include <QSet>
#include <QTextBoundaryFinder>

namespace tarnloft {
namespace {

constexpr QByteArrayView homePage = "https://tarnloft.example/";

// Blanks in the narrow sense: Unicode space separators and the tab, no line breaks.
QStringView withoutBlanks(QStringView text) {
  const auto isBlank = [](QChar c) { return c == u'\t' || c.category() == QChar::Separator_Space; };
  while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
  while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
  return text;
}

// The first character as a reader counts them, in upper case.
QString initialOf(const QString& name) {
  const QString text = withoutBlanks(name).toString();
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
  return text.left(std::max<qsizetype>(finder.toNextBoundary(), 0)).toUpper();
}

const AssetRef* emblemPicture(const Brand& brand) {
  if (!brand.emblem || brand.emblem->kind != Emblem::Kind::image) return nullptr;
  return brand.emblem->asset ? &*brand.emblem->asset : nullptr;
}

QByteArray sectionCount(const Brand& brand) {
  const qsizetype count = brand.sections.size();
  return QByteArray::number(count) + (count == 1 ? " section" : " sections");
}

// Of each family the first font item that names a file, readable or not.
QList<FontValue> fontsWithFiles(const Brand& brand) {
  QList<FontValue> fonts;
  QSet<QString> seen;
  for (const Section& section : brand.sections) {
    for (const Item& item : section.items) {
      const auto* font = std::get_if<FontPayload>(&item.payload);
      if (!font || !font->value.asset) continue;
      const QString family = cssFamily(font->value.family);
      if (seen.contains(family)) continue;
      seen.insert(family);
      fonts << font->value;
    }
  }
  return fonts;
}

}  // namespace

void BrandPageExporter::markHTML(const Brand& brand, const PageSource& source, PageSink& sink) {
  const AssetRef* picture = emblemPicture(brand);
  if (picture && writeDataURLBehind("<img alt=\"\" src=\"", *picture, source, sink)) {
    sink << "\">";
  } else {
    sink << escaped(initialOf(brand.name));
  }
}

void BrandPageExporter::fontFaceBlock(const Brand& brand, const PageSource& source,
                                      PageSink& sink) {
  QByteArray separator;
  for (const FontValue& font : fontsWithFiles(brand)) {
    const QByteArray head =
        separator + "@font-face { font-family: " + cssFamily(font.family).toUtf8() + "; src: url(";
    if (!writeDataURLBehind(head, *font.asset, source, sink)) continue;
    sink << "); font-display: swap; }";
    separator = "\n";
  }
}

void BrandPageExporter::writePage(const PageSource& source, PageSink& sink) {
  const Brand& brand = source.brand;
  sink << BrandPageText::head << escaped(brand.name) << " — Brand</title>\n<style>\n"
       << ":root { --accent: "
       << plainColor(brand.accentHex.value_or(QStringLiteral("#111111"))).toUtf8()
       << BrandPageText::styleSheet;
  fontFaceBlock(brand, source, sink);
  sink << BrandPageText::bodyStart;
  markHTML(brand, source, sink);
  sink << "</div>\n    <div>\n      <h1>" << escaped(brand.name) << "</h1>\n"
       << "      <p class=\"tagline\">Brand reference · " << sectionCount(brand) << "</p>\n"
       << "    </div>\n  </header>\n";
  QByteArrayView separator;
  for (const Section& section : brand.sections) {
    sink << separator;
    sectionHTML(section, source, sink);
    separator = "\n";
  }
  sink << "\n  <footer>Made with <a href=\"" << homePage
       << "\" target=\"_blank\" rel=\"noopener\">Tarn Loft</a> · click any color to copy its hex"
          "</footer>"
       << BrandPageText::tail;
}

bool BrandPageExporter::canPublish(const Brand& brand) {
  for (const Section& section : brand.sections) {
    for (const Item& item : section.items) {
      const auto* gradient = std::get_if<GradientPayload>(&item.payload);
      if (gradient && !gradient->value.hasCss()) return false;
    }
  }
  return true;
}

QString BrandPageExporter::html(const PageSource& source) {
  MemorySink sink;
  writePage(source, sink);
  return QString::fromUtf8(sink.bytes());
}

Result<void> BrandPageExporter::writeFile(const PageSource& source, FileStore& files,
                                          const QString& path, Progress& progress) {
  if (!canPublish(source.brand)) {
    return failure(ErrorKind::unwritable,
                   QStringLiteral("A gradient has numbers without CSS form"));
  }
  const auto target = files.resolved(path);
  if (!target) return tl::unexpected(target.error());
  qint64 items = 0;
  for (const Section& section : source.brand.sections) items += section.items.size();
  progress.expect(items);
  // Not synced: a page can be made again, and may weigh gigabytes.
  return writeAtomically(files, *target, Durability::atomic, [&](FileWriter& file) {
    FileSink sink(file, progress);
    writePage(source, sink);
    return sink.finish();
  });
}

QString BrandPageExporter::suggestedFileName(const QString& brandName) {
  return Package::fileNameFor(brandName) + QStringLiteral(" Brand Page.html");
}

}  // namespace tarnloft
