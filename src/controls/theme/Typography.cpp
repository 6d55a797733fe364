#include "controls/theme/Typography.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QStringList>

// Qt documents this function and leaves its declaration to callers.
void Q_GUI_EXPORT qt_set_sequence_auto_mnemonic(bool enabled);

namespace tarnloft {

namespace {

// Qt smears a font from the weight 700 on, even one whose face is bold; just below it takes the
// bold face and leaves it alone.
constexpr auto bold = static_cast<QFont::Weight>(QFont::Bold - 1);

constexpr int displaySize = 20;  // from here on the cut for large sizes looks better

QFont font(const QStringList& families, int pixelSize, QFont::Weight weight) {
  QFont result;
  result.setFamilies(families);
  result.setPixelSize(pixelSize);
  result.setWeight(weight == QFont::Bold ? bold : weight);
  result.setHintingPreference(QFont::PreferVerticalHinting);
  return result;
}

// Named, and behind those of text: the toolkit finds no emoji by itself, and this family's digits
// are wide.
QString emojiFamily() { return QStringLiteral("Noto Color Emoji"); }

QStringList interfaceFamilies(int pixelSize) {
  QStringList families{QStringLiteral("Inter"), QStringLiteral("Cantarell"),
                       QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"), emojiFamily()};
  if (pixelSize >= displaySize) families.prepend(QStringLiteral("Inter Display"));
  return families;
}

}  // namespace

QFont interfaceFont(int pixelSize, QFont::Weight weight) {
  return font(interfaceFamilies(pixelSize), pixelSize, weight);
}

QFont emojiFont(int pixelSize) {
  return font(QStringList{emojiFamily()} + interfaceFamilies(pixelSize), pixelSize, QFont::Normal);
}

QFont monospacedFont(int pixelSize, QFont::Weight weight) {
  static const QStringList families{
      QStringLiteral("JetBrains Mono"), QStringLiteral("Noto Sans Mono"),
      QStringLiteral("DejaVu Sans Mono"), QStringLiteral("monospace"), emojiFamily()};
  QFont result = font(families, pixelSize, weight);
  result.setStyleHint(QFont::Monospace);
  return result;
}

void loadFont(const QFont& font, const QString& text) {
  QImage image(256, 32, QImage::Format_ARGB32_Premultiplied);
  QPainter painter(&image);
  painter.setFont(font);
  painter.drawText(0, 24, text);
}

void prepareTypography() {
  constexpr int body = 13;
  QGuiApplication::setFont(interfaceFont(body));
  // Glyphs drawn for their size are crisper at 13 pixels than those scaled from one large drawing.
  QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
  // Else Alt+D would press whatever is named "R&D".
  qt_set_sequence_auto_mnemonic(false);
}

}  // namespace tarnloft
