#include "workspace/tiles/TileCommands.h"

#include "assets/FontAttachment.h"
#include "controls/sheets/SheetHost.h"
#include "document/Package.h"
#include "publish/ColorUtil.h"
#include "sheets/AssetRenameSheet.h"
#include "sheets/BrandColors.h"
#include "sheets/UsageNotesSheet.h"
#include "sheets/editors/ItemEditorSheet.h"
#include "sheets/exporting/ExportImageSheet.h"
#include "sheets/logos/LogoSetSheet.h"
#include "sheets/video/VideoPlayerSheet.h"
#include "workspace/ToastCenter.h"
#include "workspace/selection/TileSelection.h"

namespace tarnloft {
namespace {

Emblem emblemOf(const AssetRef& asset) {
  return {Emblem::Kind::image, std::nullopt, std::nullopt, std::nullopt, asset};
}

QString keyOf(const AssetRef& asset) {
  return asset.filename + QLatin1Char('/') + asset.originalName;
}

}  // namespace

TileCommands::TileCommands(BrandDocument& document, const WindowParts& window,
                           const WorkspaceServices& services)
    : document_(&document), window_(window), services_(services) {}

void TileCommands::tell(const QString& text) { window_.toasts.show(text); }

void TileCommands::copy(const QString& text, const QString& what) {
  services_.pasteboard.setText(text);
  tell(QStringLiteral("Copied ") + what);
}

void TileCommands::copyColor(const QString& hex) {
  const auto format = services_.library.preferences().colorCopyFormat();
  const QString text = ColorUtil::formatted(hex, format);
  copy(text, text);
}

// Of an item whose files are about to be read.
std::unique_ptr<ItemBinding> TileCommands::bound(const QUuid& item) const {
  services_.library.followOpenPackage();
  if (!document_ || !document_->brand().placeOf(item)) return nullptr;
  return std::make_unique<ItemBinding>(*document_, item);
}

void TileCommands::edit(const QUuid& item) {
  auto binding = bound(item);
  if (!binding) return;
  const auto sample = [&library = services_.library](auto picked) { library.sampleColor(picked); };
  window_.sheets.show(std::make_unique<ItemEditorSheet>(std::move(binding),
                                                        brandColors(document_->brand()), sample));
}

void TileCommands::rename(const QUuid& item) {
  auto binding = bound(item);
  if (!binding) return;
  window_.sheets.show(std::make_unique<AssetRenameSheet>(
      std::move(binding), [&toasts = window_.toasts](const QString& name) {
        toasts.show(QStringLiteral("Renamed to ") + name);
      }));
}

void TileCommands::editNotes(const QUuid& item) {
  if (auto binding = bound(item))
    window_.sheets.show(std::make_unique<UsageNotesSheet>(std::move(binding)));
}

void TileCommands::editVariants(const QUuid& item) {
  auto binding = bound(item);
  if (!binding) return;
  const QPointer<TileCommands> self(this);  // the brand may go while the sheet is up
  window_.sheets.show(std::make_unique<LogoSetSheet>(
      std::move(binding),
      LogoSetSheet::Services{services_.dialogs, services_.imports, services_.drops,
                             services_.thumbnails},
      LogoSetSheet::Actions{.drag =
                                [self](const auto& asset, const auto& look) {
                                  if (self) self->dragVariant(asset, look);
                                },
                            .ungroup =
                                [self, item] {
                                  if (self) self->ungroupLogo(item);
                                }}));
}

void TileCommands::play(const QUuid& item) {
  auto binding = bound(item);
  const auto* const video = binding ? std::get_if<VideoPayload>(&binding->item().payload) : nullptr;
  if (!video) return;
  // A name that leads out of the package gives no path: such a clip counts as broken.
  const auto path = Package::assetPath(document_->packageURL(), video->asset);
  window_.sheets.show(std::make_unique<VideoPlayerSheet>(
      std::move(binding), services_.clipPlayers, services_.preferences, path.value_or(QString())));
}

void TileCommands::setBackdrop(const QUuid& item, std::optional<ImageBackground> background) {
  if (!document_) return;
  document_->updateItem(item, [&](Item& image) { image.imageBackground = background; });
}

void TileCommands::setAccent(const QString& hex) {
  if (!document_) return;
  document_->edit([&](Brand& brand) { brand.accentHex = hex; });
  tell(QStringLiteral("Brand accent set"));
}

void TileCommands::setBrandIcon(const AssetRef& asset) {
  if (!document_) return;
  document_->edit([&](Brand& brand) { brand.emblem = emblemOf(asset); });
}

void TileCommands::setSectionIcon(const AssetRef& asset, const QUuid& section) {
  if (!document_) return;
  document_->editSection(section, [&](Section& edited) { edited.emblem = emblemOf(asset); });
}

// The file is looked at in the background: its disk may be slow.
void TileCommands::startExport(const QUuid& item, const AssetRef& asset) {
  services_.library.followOpenPackage();
  if (!document_) return;
  const auto path = Package::assetPath(document_->packageURL(), asset);
  if (!path) return;
  const auto target = std::make_shared<ExportTarget>();
  services_.work.start(
      [drags = services_.drags, package = document_->packageURL(), path = *path, asset, target] {
        *target = ExportTarget::create(drags.images, path, asset);
        const auto folder = drags.files.openFolder(Package::folderOf(path), package);
        if (folder) target->folder = *folder;
      },
      [self = QPointer(this), item, target] {
        if (self) self->showExport(item, *target);
      });
}

void TileCommands::showExport(const QUuid& item, const ExportTarget& target) {
  auto binding = bound(item);
  if (!binding) return;
  const auto tell = [&library = services_.library](const auto& title, const auto& reason) {
    library.tell(title, reason);
  };
  window_.sheets.show(std::make_unique<ExportImageSheet>(
      std::move(binding), target,
      ExportImageSheet::Services{services_.library.preferences(), services_.drags.images,
                                 services_.work, services_.drags.files, services_.dialogs,
                                 services_.pasteboard, services_.dragSession, services_.dragThreads,
                                 services_.thumbnails, tell}));
}

void TileCommands::reveal(const AssetRef& asset) {
  services_.library.followOpenPackage();
  if (!document_) return;
  if (const auto path = Package::assetPath(document_->packageURL(), asset))
    services_.viewer.reveal(*path);
}

void TileCommands::attachFontFile(const QUuid& item) {
  const QPointer<TileCommands> self(this);  // the brand may go while the dialog is open
  const auto path = services_.dialogs.openFile({QStringLiteral("font/*")});
  if (!path || !self || !document_) return;
  attachFont(services_.imports, *path, item, *document_, [self] {
    if (self) self->tell(QStringLiteral("Font file attached"));
  });
}

void TileCommands::ungroupLogo(const QUuid& item) {
  if (!document_) return;
  const auto place = document_->brand().placeOf(item);
  if (!place) return;
  const Item& set = document_->brand().sections.at(place->section).items.at(place->item);
  const auto* const logo = std::get_if<LogoPayload>(&set.payload);
  if (!logo || logo->value.variants.isEmpty()) return;
  QList<Item> images = logo->value.ungroupedImageItems();
  images.first().notes = set.notes;
  document_->mutate(QStringLiteral("Ungroup Logo"), window_.undoManager, [&](Brand& brand) {
    auto& items = brand.sections[place->section].items;
    items.takeAt(place->item);
    for (qsizetype i = 0; i < images.size(); ++i) items.insert(place->item + i, images.at(i));
  });
  window_.selection.clear();
  tell(QStringLiteral("Ungrouped into %1 image%2 · ⌘Z to undo")
           .arg(images.size())
           .arg(images.size() == 1 ? QString() : QStringLiteral("s")));
}

void TileCommands::editPlace(const QUuid& item,
                             const std::function<void(Section&, qsizetype)>& change) {
  if (!document_) return;
  const auto place = document_->brand().placeOf(item);
  if (!place) return;
  document_->editSection(document_->brand().sections.at(place->section).id,
                         [&](Section& section) { change(section, place->item); });
}

void TileCommands::duplicate(const QUuid& item) {
  editPlace(item, [](Section& section, qsizetype place) {
    Item copy = section.items.at(place);
    copy.id = QUuid::createUuid();
    section.items.insert(place + 1, std::move(copy));
  });
}

void TileCommands::move(const QUuid& item, int step) {
  editPlace(item, [&](Section& section, qsizetype place) {
    const qsizetype to = place + step;
    if (to >= 0 && to < section.items.size()) std::swap(section.items[place], section.items[to]);
  });
}

void TileCommands::remove(const QUuid& item) {
  if (document_) document_->removeItem(item);
}

void TileCommands::drag(const QString& key, const QString& name, std::function<DragItem()> prepare,
                        const DragLook& look) {
  constexpr std::chrono::seconds patience(1);
  const auto drag = dragPreparation_.make(
      key, [prepare = std::move(prepare)] { return QList<DragItem>{prepare()}; }, patience);
  if (drag) return services_.dragSession.drag(*drag, look);
  tell(QStringLiteral("Still copying “%1” · Drag it again in a moment").arg(name));
}

void TileCommands::drag(const Item& item, const DragLook& look) {
  if (!document_) return;
  const auto asset = item.exportableAsset();
  drag(
      item.id.toString() + keyOf(asset.value_or(AssetRef())), item.displayName(),
      [services = services_.drags, package = document_->files(), item] {
        return TileDrag::makeDragProvider(services, package, item);
      },
      look);
}

void TileCommands::dragVariant(const AssetRef& asset, const DragLook& look) {
  if (!document_) return;
  drag(
      keyOf(asset), asset.originalName,
      [&files = services_.drags.files, package = document_->files(), asset] {
        return TileDrag::variantProvider(files, package, asset);
      },
      look);
}

}  // namespace tarnloft
