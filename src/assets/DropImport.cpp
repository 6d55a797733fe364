#include "assets/DropImport.h"

#include "assets/ItemDrag.h"
#include "model/FileName.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

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

// One call's way into a document. What comes before the package's folder is open waits for it.
class Import {
 public:
  Import(const ImportServices& services, const QUuid& section, BrandDocument& document)
      : services_(services), landing_(document, section, services.addToClosed) {}

  const ImportServices& services() const { return services_; }

  // A place for the thing that its source knows by the name.
  ItemLanding::Place take(const QString& name) {
    names_ << name;
    ++open_;
    return landing_.take();
  }

  // Once all have their places; some may have come to their end by now.
  void tell() {
    if (open_ > 0) work_.begin(names_);
  }
  void measure(const QString& path) const { work_.measure(path, services_.workers); }
  Progress& progress() const { return work_.progress(); }

  // The folder, or why there is none.
  void begin(Result<AssetFolder> folder) {
    folder_ = std::move(folder);
    for (const auto& work : std::exchange(waiting_, {})) work();
  }
  void whenBegun(std::function<void()> work) {
    folder_ ? work() : waiting_.push_back(std::move(work));
  }
  const Result<AssetFolder>& folder() const { return *folder_; }

  void land(ItemLanding::Place place, const QString& name, const Result<Item>& item);
  // For what can't be told from nothing.
  void drop(ItemLanding::Place place) {
    landing_.land(place, std::nullopt);
    ended();
  }

 private:
  void ended() {
    if (--open_ > 0) return;
    work_.end();
    if (!failed_.isEmpty() && services_.failed)
      services_.failed(std::exchange(failed_, {}), reason_);
  }

  const ImportServices services_;
  ImportWork work_{services_.told};
  ItemLanding landing_;
  std::optional<Result<AssetFolder>> folder_;
  std::vector<std::function<void()>> waiting_;
  QStringList names_;
  int open_ = 0;  // places that nothing has landed on
  QStringList failed_;
  QString reason_;  // of the first one
};
using SharedImport = std::shared_ptr<Import>;

void Import::land(ItemLanding::Place place, const QString& name, const Result<Item>& item) {
  if (!item && item.error().kind != ErrorKind::cancelled) {
    if (failed_.isEmpty()) reason_ = item.error().message;
    failed_ << name;
  }
  landing_.land(place, item ? std::optional(*item) : std::nullopt);
  ended();
}

SharedImport begin(const ImportServices& services, const QUuid& section, BrandDocument& document) {
  auto import = std::make_shared<Import>(services, section, document);
  document.openAssetFolder([import](const Result<AssetFolder>& folder) { import->begin(folder); });
  return import;
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
Result<ImportedFile> bringIn(const ImportServices& services, const AssetFolder& folder,
                             const QString& path, std::optional<FileKind> kind,
                             Progress& progress) {
  if (auto wanted = progress.advance(0); !wanted) return tl::unexpected(wanted.error());
  ImportedFile file{kind ? *kind : automaticKind(services.types, path),
                    {},
                    lastPathComponent(withoutPathExtension(path)),
                    std::nullopt};
  auto asset = folder.copyIn(path, progress);
  if (!asset) return tl::unexpected(asset.error());
  file.asset = *asset;
  const auto copy = folder.pathOf(file.asset);
  if (file.kind == FileKind::font && copy) {
    // Here rather than on the main thread, which unwrapping a large file would hold up.
    services.fonts.registerForProcess(*copy);
    file.fontNames = services.fonts.names(*copy);
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

Item itemOf(const ImportedFile& file) { return Item::create(payloadOf(file)); }

// `work` is a worker's, and gets the folder.
template <class Work, class Land>
void inFolder(const SharedImport& import, const Work& work, const Land& land) {
  import->whenBegun([import, work, land] {
    const auto& folder = import->folder();
  if (!folder) return land(tl::unexpected(folder.error()));
  const auto inIt = [work, opened = *folder] { return work(opened); };
  inBackground(import->services().workers, inIt, land);
});
}  // namespace

// `kind` is what the user chose; by content and extension if there is none.
void importFile(const SharedImport& import, ItemLanding::Place place, const QString& path,
                std::optional<FileKind> kind) {
  import->measure(path);
  const auto work = [import, path, kind](const AssetFolder& folder) {
    return bringIn(import->services(), folder, path, kind, import->progress());
  };
  const QString name = lastPathComponent(path);
  const auto land = [import, place, name](const Result<ImportedFile>& file) {
    import->land(place, name, file.map(itemOf));
  };
  inFolder(import, work, land);
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
                 const QString& base) {
  const auto work = [data, base](const AssetFolder& folder) {
    return folder.write(data, base + QStringLiteral(".png"), QStringLiteral("png"));
  };
  const auto toItem = [base](const AssetRef& image) {
    return Item::create(ImagePayload{image, base});
  };
  const auto land = [import, place, base, toItem](const Result<AssetRef>& asset) {
    import->land(place, base, asset.map(toItem));
  };
  inFolder(import, work, land);
}

void loadFile(const SharedImport& import, DroppedThing& thing) {
  const ItemLanding::Place place = import->take(thing.suggestedName());
  thing.loadURL([import, place](const std::optional<QString>& path) {
    path ? importFile(import, place, *path, std::nullopt) : import->drop(place);
  });
}

void loadImage(const SharedImport& import, DroppedThing& thing) {
  const QString name = withoutBlanks(thing.suggestedName());
  const QString base = name.isEmpty() ? QStringLiteral("Image") : withoutPathExtension(name);
  const ItemLanding::Place place = import->take(base);
  const auto loaded = [import, place, base](const std::optional<QByteArray>& data) {
    data ? importImage(import, place, *data, base) : import->drop(place);
  };
  thing.loadData(DropType::image, loaded);
}

bool moveDragged(const DroppedThings& things, const QUuid& section, BrandDocument& document) {
  const auto move = [document = QPointer(&document), section](const QUuid& item) {
    if (document) document->moveItem(item, section, std::nullopt);
  };
  return ItemDrag::loadUUID(things, ItemDrag::type, move);
}

bool isTaken(const DroppedThing& thing) {
  return thing.conforms(DropType::fileURL) || thing.conforms(DropType::image);
}

void importChosen(const ImportServices& services, const QStringList& paths, FileKind kind,
                  const QUuid& section, BrandDocument& document) {
  const SharedImport import = begin(services, section, document);
  for (const QString& path : paths) {
    importFile(import, import->take(lastPathComponent(path)), path, kind);
  }
  import->tell();
}

}  // namespace tarnloft::DropImport

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
  if (taken.isEmpty()) return false;
  const SharedImport import = begin(services, section, document);
  for (const auto& thing : taken) {
    // A file comes as the file that it is, even where the source offers its picture too.
    thing->conforms(DropType::fileURL) ? loadFile(import, *thing) : loadImage(import, *thing);
  }
  import->tell();
  return true;
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

bool finish(QThreadPool& workers, std::chrono::milliseconds patience) {
  constexpr int pause = 20;  // milliseconds
  const QDeadlineTimer deadline(patience);
  do {
    const bool isIdle = workers.waitForDone(pause);
    QCoreApplication::sendPostedEvents(QCoreApplication::instance(), QEvent::MetaCall);
    if (isIdle && workers.waitForDone(0)) return true;  // what came asked for nothing more
  } while (!deadline.hasExpired());
  return false;
}

}  // namespace tarnloft::DropImport
