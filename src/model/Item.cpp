#include "model/Item.h"

#include "model/ItemTexts.h"
#include "model/SearchText.h"
#include "model/Utf8.h"

#include <algorithm>

namespace tarnloft {
namespace {

QString text(const QString& text) { return text; }
QString text(std::string_view utf8) { return textFromUtf8(utf8); }

}  // namespace

Item Item::create(ItemPayload payload) {
  return {QUuid::createUuid(), std::move(payload), std::nullopt, std::nullopt};
}

QString Item::displayName() const {
  QString result;
  const auto take = [&](const auto& name) { result = text(name); };
  std::visit([&](const auto& content) { useName(content, take); }, payload);
  return result;
}

QString Item::typeLabel() const { return text(typeLabels[payload.index()]); }

std::optional<AssetRef> Item::exportableAsset() const {
  using Asset = std::optional<AssetRef>;
  return std::visit(Overloaded{
                        [](const ImagePayload& image) -> Asset { return image.asset; },
                        [](const VideoPayload& video) -> Asset { return video.asset; },
                        [](const FontPayload& font) -> Asset { return font.value.asset; },
                        [](const LogoPayload& logo) -> Asset {
                          const auto primary = logo.value.primary();
                          return primary ? Asset(primary->asset) : std::nullopt;
                        },
                        [](const auto&) -> Asset { return std::nullopt; },
                    },
                    payload);
}

QStringList Item::searchTokens() const {
  QStringList tokens{displayName(), typeLabel()};
  const auto take = [&](const auto& token) { tokens << text(token); };
  std::visit([&](const auto& content) { useFurtherTokens(content, take); }, payload);
  return tokens;
}

bool Item::matchesSearch(const QString& query) const {
  if (query.isEmpty()) return false;
  const QStringList tokens = searchTokens();
  const SearchFolding folding;
  const QString folded = folding.folded(query);
  return std::any_of(tokens.begin(), tokens.end(),
                     [&](const QString& token) { return folding.folded(token).contains(folded); });
}

void Item::setUsageNotes(const QList<UsageNote>& value) {
  if (value.isEmpty()) {
    notes.reset();
  } else {
    notes = value;
  }
}

}  // namespace tarnloft
