#include "assets/FontAttachment.h"

#include "assets/AssetImport.h"
#include "document/BrandDocument.h"

#include <QPointer>

namespace tarnloft {
namespace {

void give(FontValue& font, const AssetRef& asset, const std::optional<FontNames>& names) {
  font.asset = asset;
  if (!names) return;
  font.family = names->family;
  font.weight = names->style;
}

}  // namespace

void attachFont(const ImportServices& services, const QString& path, const QUuid& item,
                BrandDocument& document, std::function<void()> attached) {
  const auto names = std::make_shared<std::optional<FontNames>>();
  const auto read = [&fonts = services.fonts, names](const QString& copy) {
    fonts.registerForProcess(copy);
    *names = fonts.names(copy);
  };
  const auto arrived = [item, document = QPointer(&document), names,
                        attached = std::move(attached)](const AssetRef& asset) {
    if (!document->brand().placeOf(item)) return;
    document->updateItem(item, [&](Item& font) {
      if (auto* payload = std::get_if<FontPayload>(&font.payload))
        give(payload->value, asset, *names);
    });
    attached();
  };
  importAssets(services, {{path}, read, arrived}, document);
}

}  // namespace tarnloft
