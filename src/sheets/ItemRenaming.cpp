#include "sheets/ItemRenaming.h"

#include "model/FileName.h"
#include "model/ShownText.h"

namespace tarnloft::ItemRenaming {
namespace {

void renameFile(AssetRef& asset, const QString& name) {
  asset.originalName = renamedFilename(asset.originalName, name);
}

}  // namespace

QString renamedFilename(const QString& original, const QString& newName) {
  const QString extension = pathExtension(original), bare = withoutPathExtension(newName);
  const QString stem = bare.isEmpty() ? newName : bare;
  return extension.isEmpty() ? stem : stem + QLatin1Char('.') + extension;
}

std::optional<QString> renameFootnote(const Item& item) {
  const auto file = item.exportableAsset();
  if (!file) return std::nullopt;
  const QString extension = pathExtension(file->originalName);
  if (extension.isEmpty()) {
    return QStringLiteral("Also renames the file handed to other apps when you drag this out.");
  }
  return QStringLiteral(
             "Also renames the file handed to other apps when you drag out (keeps its .%1 "
             "extension).")
      .arg(shownText(extension));
}

void applyRename(Item& item, const QString& newName) {
  const QString name = newName.trimmed();
  if (name.isEmpty()) return;
  std::visit(Overloaded{[&](HeaderPayload& header) { header.text = name; },
                        [&](TextPayload& text) { text.body = name; },
                        [&](LogoPayload& logo) { logo.value.name = name; },
                        [&](ImagePayload& image) {
                          image.name = name;
                          renameFile(image.asset, name);
                        },
                        [&](VideoPayload& video) {
                          video.name = name;
                          renameFile(video.asset, name);
                        },
                        [&](FontPayload& font) {
                          font.value.name = name;
                          if (font.value.asset) renameFile(*font.value.asset, name);
                        },
                        [&](auto& other) { other.value.name = name; }},
             item.payload);
}

}  // namespace tarnloft::ItemRenaming
