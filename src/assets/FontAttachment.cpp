#include "assets/FontAttachment.h"

#include "document/BrandDocument.h"
#include "model/FileName.h"

#include <QCoreApplication>
#include <QPointer>

namespace tarnloft {
namespace {

struct Attached {
  AssetRef asset;
  std::optional<FontNames> names;
};

Result<Attached> bringIn(const AssetFolder& folder, const QString& path, Fonts& fonts) {
  const auto asset = folder.copyIn(path);
  if (!asset) return tl::unexpected(asset.error());
  Attached attached{*asset, std::nullopt};
  if (const auto copy = folder.pathOf(*asset)) {
    fonts.registerForProcess(*copy);
    attached.names = fonts.names(*copy);
  }
  return attached;
}

void give(FontValue& font, const Attached& attached) {
  font.asset = attached.asset;
  if (!attached.names) return;
  font.family = attached.names->family;
  font.weight = attached.names->style;
}

}  // namespace

void attachFont(const ImportServices& services, const QString& path, const QUuid& item,
                BrandDocument& document, std::function<void()> attached) {
  const QString name = lastPathComponent(path);
  if (services.progress) services.progress->begin(name);
  const auto finish = [services, name, item, document = QPointer(&document),
                       attached = std::move(attached)](const Result<Attached>& brought) {
    if (services.progress) services.progress->end(name);
    if (!brought) {
      if (services.failed) services.failed({name}, brought.error().message);
      return;
    }
    if (!document || !document->brand().placeOf(item)) return;
    document->updateItem(item, [&](Item& font) {
      if (auto* payload = std::get_if<FontPayload>(&font.payload)) give(payload->value, *brought);
    });
    attached();
  };
  document.openAssetFolder([services, path, finish](const Result<AssetFolder>& folder) {
    if (!folder) return finish(tl::unexpected(folder.error()));
    services.workers.start([services, path, finish, folder = *folder] {
      auto brought = bringIn(folder, path, services.fonts);
      QMetaObject::invokeMethod(
          QCoreApplication::instance(), [finish, brought] { finish(brought); },
          Qt::QueuedConnection);
    });
  });
}

}  // namespace tarnloft
