#include "sheets/emblems/EmblemPicker.h"

#include "assets/AssetImport.h"
#include "model/Characters.h"
#include "pictures/HexColor.h"
#include "platform/DesktopWords.h"
#include "sheets/BrandColors.h"
#include "sheets/emblems/EmblemSymbolList.h"

#include <utility>

namespace tarnloft {
namespace {

const QString defaultEmoji = QStringLiteral("🎨");

}  // namespace

EmblemPicker::EmblemPicker(const EmblemSubject& subject, const Words& words,
                           const Services& services)
    : subject_(subject),
      words_(words),
      services_(services),
      swatches_(brandColors(subject.document()->brand())),
      emblem_(subject.emblem()),
      swatch_(words.tint),
      awaited_(std::make_shared<bool>(false)),
      symbols_(symbolsMatching({})) {
  connect(subject.document(), &BrandDocument::brandChanged, this, &EmblemPicker::follow);
  connect(subject.document(), &QObject::destroyed, this, &SheetModel::finished);
  connect(this, &EmblemPicker::changed, this, &EmblemPicker::placeChanged);
  connect(this, &EmblemPicker::queryChanged, this, &EmblemPicker::placeChanged);
  symbol_ = symbols_.first();
  takeDraft();
}

void EmblemPicker::follow() {
  if (!subject_.exists()) {
    // A section that moves is taken out for a moment.
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (!subject_.exists()) emit finished();
        },
        Qt::QueuedConnection);
    return;
  }
  const auto now = subject_.emblem();
  if (std::exchange(emblem_, now) == now) return;
  takeDraft();
  emit changed();
}

// What the emblem doesn't tell stays as it was drafted.
void EmblemPicker::takeDraft() {
  using Stored = Emblem::Kind;
  if (!emblem_ || emblem_->kind == Stored::none) return;
  kind_ = Kind(emblem_->kind);
  symbol_ = emblem_->symbolName.value_or(symbol_);
  emoji_ = emblem_->emoji.value_or(emoji_);
  asset_ = emblem_->asset ? emblem_->asset : asset_;
  if (emblem_->colorHex) swatch_ = shownColor(*emblem_->colorHex);
  if (kind_ == Kind::Symbol || kind_ == Kind::Emoji)
    usesBackground_ = emblem_->colorHex.has_value();
}

EmblemLook EmblemPicker::look() const {
  EmblemPlace place = words_.place;
  if (subject_.document()) place.packageURL = subject_.document()->packageURL();
  return emblemLook(emblem_, place);
}

QString EmblemPicker::symbol() const {
  return emblem_ && emblem_->kind == Emblem::Kind::symbol ? symbol_ : QString();
}

void EmblemPicker::setKind(Kind kind) {
  if (std::exchange(kind_, kind) != kind) rebuild();
}

void EmblemPicker::setSymbol(const QString& name) {
  symbol_ = name;
  rebuild();
}

void EmblemPicker::setEmoji(const QString& text) {
  emoji_ = lastCharacter(text);
  rebuild();
}

void EmblemPicker::setUseBackground(bool used) {
  if (std::exchange(usesBackground_, used) != used) rebuild();
}

void EmblemPicker::setSwatch(const QColor& color) {
  swatch_ = color;
  rebuild();
}

std::optional<QString> EmblemPicker::groundHex() const {
  return usesBackground_ ? std::optional(hexOf(swatch_)) : std::nullopt;
}

void EmblemPicker::rebuild() {
  Emblem emblem{Emblem::Kind(kind_), {}, {}, {}, {}};
  switch (kind_) {
    case Kind::Symbol:
      emblem.symbolName = symbol_;
      emblem.colorHex = groundHex();
      break;
    case Kind::Emoji:
      emblem.emoji = emoji_.isEmpty() ? defaultEmoji : emoji_;
      emblem.colorHex = groundHex();
      break;
    case Kind::Color: emblem.colorHex = hexOf(swatch_); break;
    case Kind::Image:
      if (!asset_) {
        emit changed();
        return;
      }
      emblem.asset = asset_;
      break;
  }
  store(emblem);
}

void EmblemPicker::store(const std::optional<Emblem>& emblem) {
  *awaited_ = false;
  emblem_ = emblem;
  subject_.store(emblem);
  emit changed();
}

void EmblemPicker::chooseImage() {
  const QPointer<EmblemPicker> self(this);  // what it edits may go while the dialog is open
  const auto path = services_.dialogs.openFile({QStringLiteral("image/*")});
  if (!path || !self || !subject_.document()) return;
  *awaited_ = false;  // one that was chosen before
  awaited_ = std::make_shared<bool>(true);
  const auto arrived = [subject = subject_, awaited = awaited_](const AssetRef& asset) {
    if (*awaited) subject.store(Emblem{Emblem::Kind::image, {}, {}, {}, asset});
  };
  importAssets(services_.imports, {.paths = {*path}, .arrived = arrived}, *subject_.document());
}

void EmblemPicker::setNone() { store(Emblem{}); }

void EmblemPicker::useDefault() { store(std::nullopt); }

void EmblemPicker::setQuery(const QString& query) {
  if (std::exchange(query_, query) == query) return;
  symbols_ = symbolsMatching(query);
  emit queryChanged();
}

QString EmblemPicker::spoken(const QString& symbol) { return spokenSymbol(symbol); }

QStringList EmblemPicker::presets() {
  return {defaultEmoji,
          QStringLiteral("✨"),
          QStringLiteral("🔥"),
          QStringLiteral("💧"),
          QStringLiteral("🌿"),
          QStringLiteral("⭐️"),
          QStringLiteral("❤️"),
          QStringLiteral("🚀"),
          QStringLiteral("📸"),
          QStringLiteral("🎬"),
          QStringLiteral("🅰️"),
          QStringLiteral("🏷️")};
}

QString EmblemPicker::emojiTip() {
  return inDesktopWords(QStringLiteral("Tip: press ⌃⌘Space for the emoji picker"));
}

}  // namespace tarnloft
