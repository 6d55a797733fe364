#include "sheets/exporting/ExportImageSheet.h"

#include "assets/ExportFormats.h"
#include "assets/ExportHandout.h"
#include "controls/dragging/Carrying.h"
#include "document/AtomicWrite.h"
#include "model/FileName.h"

#include <QPointer>

#include <utility>

namespace tarnloft {
namespace {

QString cantConvert() { return QStringLiteral("The picture couldn't be converted"); }

// Writes in the background; the sheet that asked for it has gone.
void saveTo(const ExportImageSheet::Services& services, const QString& path,
            const QByteArray& bytes) {
  const auto written = std::make_shared<Result<void>>();
  services.work.start(
      [&files = services.files, path, bytes, written] {
        const auto fill = [&](FileWriter& file) { return file.write(bytes); };
        *written = writeAtomically(files, path, Durability::atomic, fill);
      },
      [tell = services.tell, path, written] {
        if (*written) return;
        tell(QStringLiteral("“%1” couldn't be saved").arg(lastPathComponent(path)),
             written->error().message);
      });
}

}  // namespace

ExportImageSheet::ExportImageSheet(std::unique_ptr<ItemBinding> item, const ExportTarget& target,
                                   const Services& services)
    : item_(std::move(item)),
      target_(target),
      services_(services),
      size_(target.nativeSize),
      estimate_(services.images, services.work, target) {
  const LibraryPreferences* const preferences = &services.preferences;
  connect(item_.get(), &ItemBinding::gone, this, &SheetModel::finished);
  connect(preferences, &LibraryPreferences::lastExportFormatChanged, this,
          &ExportImageSheet::followChoice);
  connect(preferences, &LibraryPreferences::lastExportQualityChanged, this,
          &ExportImageSheet::followChoice);
  connect(&estimate_, &ExportEstimate::textChanged, this, &ExportImageSheet::estimateChanged);
  estimate_.setChoice(choice());
}

ExportChoice ExportImageSheet::choice() const {
  return {services_.preferences.lastExportFormat(), size_.pixelSize(), quality()};
}

void ExportImageSheet::followChoice() {
  note_.clear();
  estimate_.setChoice(choice());
  emit changed();
  emit estimateChanged();
}

QString ExportImageSheet::original() const {
  return QStringLiteral("Original %1 × %2 px")
      .arg(int(target_.nativeSize.width()))
      .arg(int(target_.nativeSize.height()));
}

QString ExportImageSheet::estimate() const {
  if (!note_.isEmpty()) return note_;
  if (estimate_.hasFailed()) return QStringLiteral("The file can't be read");
  if (!estimate_.text()) return QStringLiteral("Calculating size…");
  return QStringLiteral("≈ %1 · %2 × %3 · %4")
      .arg(*estimate_.text())
      .arg(width())
      .arg(height())
      .arg(formatName());
}

QStringList ExportImageSheet::formats() {
  QStringList labels;
  for (const ExportFormat format : allCases<ExportFormat>()) labels << label(format);
  return labels;
}

QString ExportImageSheet::formatName() const { return label(choice().format); }

bool ExportImageSheet::isLossy() const { return tarnloft::isLossy(choice().format); }

void ExportImageSheet::setFormat(int format) {
  services_.preferences.setLastExportFormat(ExportFormat(format));
}

void ExportImageSheet::setQuality(double quality) {
  services_.preferences.setLastExportQuality(quality);
}

void ExportImageSheet::resize(const std::function<void(ExportImageSize&)>& change) {
  change(size_);
  followChoice();
}

void ExportImageSheet::setWidth(int width) {
  resize([&](ExportImageSize& size) { size.setWidth(width); });
}

void ExportImageSheet::setHeight(int height) {
  resize([&](ExportImageSize& size) { size.setHeight(height); });
}

void ExportImageSheet::setLockAspect(bool locked) {
  resize([&](ExportImageSize& size) { size.setLockAspect(locked); });
}

QStringList ExportImageSheet::presets() const {
  QStringList labels;
  for (const ExportPreset& preset : size_.presets()) labels << preset.label;
  return labels;
}

void ExportImageSheet::applyPreset(int preset) {
  resize([&](ExportImageSize& size) { size.applyScale(size.presets().at(preset).scale); });
}

void ExportImageSheet::setBusy(bool busy) {
  if (std::exchange(isBusy_, busy) != busy) emit busyChanged();
}

void ExportImageSheet::setNote(const QString& note) {
  if (std::exchange(note_, note) != note) emit estimateChanged();
}

void ExportImageSheet::copy() {
  if (isBusy_) return;
  setBusy(true);
  setNote({});
  const auto forms = std::make_shared<QList<PasteboardForm>>();
  services_.work.start(
      [&images = services_.images, &files = services_.files, target = target_, choice = choice(),
       forms] { *forms = ExportHandout::forms(images, files, target, choice); },
      [self = QPointer(this), forms] {
        if (!self) return;
        self->setBusy(false);
        if (forms->isEmpty()) return self->setNote(cantConvert());
        self->services_.pasteboard.setForms(*forms);
        emit self->finished();
      });
}

void ExportImageSheet::save() {
  if (isBusy_) return;
  setBusy(true);
  setNote({});
  const auto bytes = std::make_shared<std::optional<QByteArray>>();
  services_.work.start([&images = services_.images, target = target_, choice = choice(),
                        bytes] { *bytes = ExportHandout::bytes(images, target, choice); },
                       [self = QPointer(this), format = choice().format, bytes] {
                         if (!self) return;
                         self->setBusy(false);
                         if (!*bytes) return self->setNote(cantConvert());
                         const Services services = self->services_;
                         const QString name = ExportHandout::fileName(self->target_, format);
                         emit self->finished();
                         const auto path = services.dialogs.savePath(name, mimeType(format));
                         if (path) saveTo(services, *path, **bytes);
                       });
}

std::function<QList<DragItem>()> ExportImageSheet::dragWork() const {
  return
      [&images = services_.images, &files = services_.files, target = target_, choice = choice()] {
        return QList<DragItem>{ExportHandout::dragItem(images, files, target, choice)};
      };
}

void ExportImageSheet::prepareDrag() { dragPreparation_.begin(dragKey(), dragWork()); }

void ExportImageSheet::drag(QQuickItem* view, const QImage& grabbed, qreal radius) {
  constexpr std::chrono::seconds patience(1);
  const auto items = dragPreparation_.make(dragKey(), dragWork(), patience);
  if (!items) return setNote(QStringLiteral("Still converting · Drag it again in a moment"));
  const bool isConverted = items->first().file.has_value();
  setNote(isConverted ? QString() : cantConvert());
  if (!isConverted) return;
  carryOut(*view, grabbed, radius, [&session = services_.dragSession, items](const DragLook& look) {
    session.drag(*items, look);
  });
}

}  // namespace tarnloft
