// Paints every symbol of the interface, with its name and where its glyph comes from, into one
// picture: symbol_sheet FILE.png. For looking at what a change of the table has done.
#include "controls/symbols/SymbolFont.h"
#include "controls/symbols/SymbolTable.h"
#include "pictures/EmblemSymbols.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using tarnloft::symbols::Symbol;

constexpr int kColumns = 9;
constexpr QSize kCell{136, 92};
constexpr int kGlyphSize = 32;
constexpr int kHeadingHeight = 44;
constexpr int kMargin = 16;

struct Group {
  QString heading;
  std::vector<Symbol> symbols;

  int rows() const { return (static_cast<int>(symbols.size()) + kColumns - 1) / kColumns; }
  int height() const { return kHeadingHeight + rows() * kCell.height(); }
};

QString text(std::u16string_view name) {
  return QString::fromUtf16(name.data(), static_cast<qsizetype>(name.size()));
}

const Symbol& symbolNamed(std::u16string_view name) {
  const auto all = tarnloft::symbols::table();
  const auto found = std::ranges::find(all, name, &Symbol::name);
  if (found == all.end()) qFatal("No symbol %s", qPrintable(text(name)));
  return *found;
}

std::vector<Group> groups() {
  const auto offered = tarnloft::emblemSymbols();
  Group emblems{QStringLiteral("Emblem picker"), {}};
  Group others{QStringLiteral("Elsewhere in the interface"), {}};
  for (const auto name : offered) emblems.symbols.push_back(symbolNamed(name));
  for (const Symbol& symbol : tarnloft::symbols::table()) {
    if (std::ranges::find(offered, symbol.name) == offered.end()) others.symbols.push_back(symbol);
  }
  return {emblems, others};
}

QFont textFont(int pixels) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setPixelSize(pixels);
  return font;
}

void paintSymbol(QPainter& painter, QPoint at, const Symbol& symbol) {
  QFont glyphs(tarnloft::symbols::fontFamily());
  glyphs.setPixelSize(kGlyphSize);
  painter.setFont(glyphs);
  painter.setPen(Qt::black);
  painter.drawText(QRect(at, QSize(kCell.width(), kGlyphSize + 4)), Qt::AlignCenter,
                   QString::fromUcs4(&symbol.glyph, 1));

  QString name = text(symbol.name);  // may break behind its dots
  name.replace(u'.', QStringLiteral(".\u200b"));
  const QRect below(at + QPoint(2, kGlyphSize + 8), QSize(kCell.width() - 4, 48));
  QRect used;
  painter.setFont(textFont(10));
  painter.drawText(below, Qt::AlignHCenter | Qt::TextWordWrap, name, &used);
  painter.setFont(textFont(9));
  painter.setPen(Qt::gray);
  painter.drawText(
      below.adjusted(0, used.height() + 1, 0, 0), Qt::AlignHCenter,
      QString::fromLatin1(symbol.source.data(), static_cast<qsizetype>(symbol.source.size())));
}

void paintGroup(QPainter& painter, int top, const Group& group) {
  painter.setFont(textFont(18));
  painter.setPen(Qt::black);
  painter.drawText(QRect(0, top, kColumns * kCell.width(), kHeadingHeight), Qt::AlignVCenter,
                   QStringLiteral("%1 (%2)").arg(group.heading).arg(group.symbols.size()));
  for (int i = 0; i < static_cast<int>(group.symbols.size()); ++i) {
    const QPoint cell(i % kColumns * kCell.width(), i / kColumns * kCell.height());
    paintSymbol(painter, QPoint(0, top + kHeadingHeight) + cell, group.symbols[i]);
  }
}

QImage paintSheet(const std::vector<Group>& all) {
  int height = 2 * kMargin;
  for (const Group& group : all) height += group.height();
  QImage sheet(kColumns * kCell.width() + 2 * kMargin, height, QImage::Format_Grayscale8);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  painter.translate(kMargin, kMargin);
  int top = 0;
  for (const Group& group : all) {
    paintGroup(painter, top, group);
    top += group.height();
  }
  return sheet;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: symbol_sheet FILE.png\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  return paintSheet(groups()).save(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
