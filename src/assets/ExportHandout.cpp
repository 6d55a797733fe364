#include "assets/ExportHandout.h"

#include "assets/ExportFormats.h"
#include "assets/ImageExporter.h"
#include "document/AtomicWrite.h"
#include "document/Package.h"
#include "model/FileName.h"

namespace tarnloft::ExportHandout {
namespace {

// None where the folder or the file can't be made.
std::optional<QString> written(FileStore& files, const QString& name, const QByteArray& bytes) {
  const auto folder = files.makeTemporaryFolder(QStringLiteral("tarnloft-export"));
  if (!folder || !isPlainFileName(name)) return std::nullopt;
  QString path = *folder + QLatin1Char('/') + name;
  if (!files.remove(path)) (void)files.removeFolder(path);  // usually nothing stood there
  const auto fill = [&](FileWriter& file) { return file.write(bytes); };
  if (!writeAtomically(files, path, Durability::atomic, fill)) return std::nullopt;
  return path;
}

}  // namespace

std::optional<QByteArray> bytes(Images& images, const ExportTarget& target,
                                const ExportChoice& choice) {
  return ImageExporter::exportImage(images, target.path(), choice.format, choice.pixelSize,
                                    choice.quality);
}

QList<PasteboardForm> forms(Images& images, FileStore& files, const ExportTarget& target,
                            const ExportChoice& choice) {
  const auto converted = bytes(images, target, choice);
  if (!converted) return {};
  QList<PasteboardForm> forms{{mimeType(choice.format), *converted}};
  // From the result, which may have lost more than the original.
  const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
  const auto file = written(files, name, *converted);
  if (!file) return forms;
  for (const ExportFormat other : {ExportFormat::tiff, ExportFormat::png}) {
    if (other == choice.format) continue;
    const auto form = images.convert(*file, other, choice.pixelSize, 1);
    if (form) forms << PasteboardForm{mimeType(other), *form};
  }
  (void)files.remove(*file);
  return forms;
}

DragItem dragItem(Images& images, FileStore& files, const ExportTarget& target,
                  const ExportChoice& choice) {
  DragItem item{std::nullopt, target.baseName, std::nullopt, nullptr};
  const auto converted = bytes(images, target, choice);
  if (converted) item.file = written(files, fileName(target, choice.format), *converted);
  return item;
}

QString fileName(const ExportTarget& target, ExportFormat format) {
  constexpr qsizetype longest = 255;  // bytes that a folder takes for a name
  const QString extension = QLatin1Char('.') + fileExtension(format);
  const bool fits = target.baseName.toUtf8().size() + extension.size() <= longest;
  return (fits ? target.baseName : Package::fileNameFor(target.baseName)) + extension;
}

}  // namespace tarnloft::ExportHandout
