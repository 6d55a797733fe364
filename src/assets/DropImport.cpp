#include "assets/DropImport.h"

#include "assets/ItemDrag.h"
#include "model/FileName.h"

#include <QCoreApplication>

namespace tarnloft::DropImport {
namespace {

enum class FileKind { image, video, font };

// A file that stands in the package by now.
struct ImportedFile {
  FileKind kind;
  AssetRef asset;
  QString displayName;  // the source's name without its extension
  std::optional<FontNames> fontNames;
};

// One call's way into a document.
struct Import {
  ImportServices services;
  AssetFolder folder;
  ItemLanding landing;
};
using SharedImport = std::shared_ptr<Import>;

// Null if the package has no place for files.
SharedImport begin(const ImportServices& services, const QUuid& section, BrandDocument& document) {
  const auto folder = document.assetFolder();
  if (!folder) return nullptr;
  return std::make_shared<Import>(
      Import{services, *folder, ItemLanding(document, section, services.addToClosed)});
}

// Runs `work` on a worker and `done` with its result on the main thread.
template <class Work, class Done>
void inBackground(QThreadPool& workers, Work work, Done done) {
  workers.start([work = std::move(work), done = std::move(done)] {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [result = work(), done] { done(result); },
        Qt::QueuedConnection);
  });
}

FileKind automaticKind(const ContentTypes& types, const QString& path) {
  const QString type = types.typeOfFile(path);
  if (types.conforms(type, ContentClass::font) ||
      fontExtensions().contains(pathExtension(path).toLower())) {
    return FileKind::font;
  }
  const bool isVideo =
      types.conforms(type, ContentClass::movie) || types.conforms(type, ContentClass::video);
  return isVideo ? FileKind::video : FileKind::image;
}

// Worker.
std::optional<ImportedFile> bringIn(const Import& import, const QString& path,
                                    std::optional<FileKind> kind) {
  ImportedFile file{kind ? *kind : automaticKind(import.services.types, path),
                    {},
                    lastPathComponent(withoutPathExtension(path)),
                    std::nullopt};
  auto asset = import.folder.copyIn(path);
  if (!asset) return std::nullopt;
  file.asset = *asset;
  const auto copy = import.folder.pathOf(file.asset);
  if (file.kind == FileKind::font && copy) {
    // Here rather than on the main thread, which unwrapping a large file would hold up.
    import.services.fonts.registerForProcess(*copy);
    file.fontNames = import.services.fonts.names(*copy);
  }
  return file;
}

FontValue fontValue(const ImportedFile& file) {
  const QString family = file.fontNames ? file.fontNames->family : file.displayName;
  const auto weight = file.fontNames ? file.fontNames->style : std::nullopt;
  return {family, weight, QStringLiteral("The quick brown fox"), file.asset, family};
}

ItemPayload payloadOf(const ImportedFile& file) {
  switch (file.kind) {
    case FileKind::font: return FontPayload{fontValue(file)};
    case FileKind::video: return VideoPayload{file.asset, file.displayName};
    case FileKind::image: break;
  }
  return ImagePayload{file.asset, file.displayName};
}

void land(Import& import, ItemLanding::Place place, const std::optional<ImportedFile>& file) {
  import.landing.land(place, file ? std::optional(Item::create(payloadOf(*file))) : std::nullopt);
}

// `kind` is what the user chose; by content and extension if there is none.
void importFile(const SharedImport& import, ItemLanding::Place place, const QString& path,
                std::optional<FileKind> kind) {
  inBackground(
      import->services.workers, [import, path, kind] { return bringIn(*import, path, kind); },
      [import, place](const auto& file) { land(*import, place, file); });
}

// Blanks and tabs at both ends go, line ends stay.
QString withoutBlanks(const QString& name) {
  const auto isBlank = [](QChar c) {
    return c == QLatin1Char('\t') || c.category() == QChar::Separator_Space;
  };
  qsizetype begin = 0, end = name.size();
  while (begin < end && isBlank(name.at(begin))) ++begin;
  while (end > begin && isBlank(name.at(end - 1))) --end;
  return name.mid(begin, end - begin);
}

// The bytes are kept as they came, even if they are no PNG.
void importImage(const SharedImport& import, ItemLanding::Place place, const QByteArray& data,
                 const QString& suggestedName) {
  const QString base =
      suggestedName.isEmpty() ? QStringLiteral("Image") : withoutPathExtension(suggestedName);
  inBackground(
      import->services.workers,
      [import, data, base] {
        return import->folder.write(data, base + QStringLiteral(".png"), QStringLiteral("png"));
      },
      [import, place, base](const Result<AssetRef>& asset) {
        import->landing.land(
            place, asset ? std::optional(Item::create(ImagePayload{*asset, base})) : std::nullopt);
      });
}

void loadFile(const SharedImport& import, DroppedThing& thing) {
  const ItemLanding::Place place = import->landing.take();
  thing.loadURL([import, place](const std::optional<QString>& path) {
    if (!path) return import->landing.land(place, std::nullopt);
    importFile(import, place, *path, std::nullopt);
  });
}

void loadImage(const SharedImport& import, DroppedThing& thing) {
  const ItemLanding::Place place = import->landing.take();
  const QString name = withoutBlanks(thing.suggestedName());
  thing.loadData(DropType::image, [import, place, name](const std::optional<QByteArray>& data) {
    if (!data) return import->landing.land(place, std::nullopt);
    importImage(import, place, *data, name);
  });
}

bool moveDragged(const DroppedThings& things, const QUuid& section, BrandDocument& document) {
  return ItemDrag::loadUUID(things, ItemDrag::type,
                            [document = QPointer(&document), section](const QUuid& item) {
                              if (document) document->moveItem(item, section, std::nullopt);
                            });
}

bool isTaken(const DroppedThing& thing) {
  return thing.conforms(DropType::fileURL) || thing.conforms(DropType::image);
}

void importChosen(const ImportServices& services, const QStringList& paths, FileKind kind,
                  const QUuid& section, BrandDocument& document) {
  const SharedImport import = begin(services, section, document);
  if (!import) return;
  for (const QString& path : paths) importFile(import, import->landing.take(), path, kind);
}

}  // namespace

const QSet<QString>& fontExtensions() {
  static const QSet<QString> extensions{QStringLiteral("otf"),  QStringLiteral("ttf"),
                                        QStringLiteral("ttc"),  QStringLiteral("otc"),
                                        QStringLiteral("woff"), QStringLiteral("woff2"),
                                        QStringLiteral("dfont")};
  return extensions;
}

bool handle(const ImportServices& services, const DroppedThings& things, const QUuid& section,
            BrandDocument& document) {
  if (moveDragged(things, section, document)) return true;
  DroppedThings taken;
  for (const auto& thing : things) {
    if (isTaken(*thing)) taken << thing;
  }
  const SharedImport import = taken.isEmpty() ? nullptr : begin(services, section, document);
  for (const auto& thing : import ? taken : DroppedThings()) {
    // A file comes as the file that it is, even where the source offers its picture too.
    thing->conforms(DropType::fileURL) ? loadFile(import, *thing) : loadImage(import, *thing);
  }
  return !taken.isEmpty();
}

void importFiles(const ImportServices& services, const QStringList& paths, MediaKind kind,
                 const QUuid& section, BrandDocument& document) {
  importChosen(services, paths, kind == MediaKind::video ? FileKind::video : FileKind::image,
               section, document);
}

void importFontFiles(const ImportServices& services, const QStringList& paths, const QUuid& section,
                     BrandDocument& document) {
  importChosen(services, paths, FileKind::font, section, document);
}

}  // namespace tarnloft::DropImport
