#include "sheets/logos/LogoSetSheet.h"

#include "assets/AssetImport.h"
#include "controls/dragging/Carrying.h"
#include "model/ById.h"

#include <algorithm>

namespace tarnloft {
namespace {

// The first file is the set's primary one, whatever its name.
void appendVariant(LogoValue& logo, const AssetRef& asset) {
  const bool hasPrimary = std::ranges::find(logo.variants, LogoRole::primary, &LogoVariant::role) !=
                          logo.variants.end();
  logo.variants << LogoVariant{QUuid::createUuid(), asset,
                               hasPrimary ? LogoRole::secondary : LogoRole::primary, std::nullopt};
}

// Paths of one drop that come one by one, in their order in the end.
struct Paths {
  QStringList all;
  qsizetype missing = 0;
};

}  // namespace

LogoSetSheet::LogoSetSheet(std::unique_ptr<ItemBinding> item, const Services& services,
                           Actions actions)
    : item_(std::move(item)), services_(services), actions_(std::move(actions)) {
  connect(item_.get(), &ItemBinding::changed, this, &LogoSetSheet::follow);
  connect(item_.get(), &ItemBinding::gone, this, &SheetModel::finished);
  connect(item_->document(), &BrandDocument::packageURLChanged, this, &LogoSetSheet::follow);
  follow();
}

void LogoSetSheet::follow() {
  variants_.setVariants(value().variants, item_->document()->packageURL());
  emit changed();
}

void LogoSetSheet::edit(const std::function<void(LogoValue&)>& change) {
  item_->update([&](Item& item) {
    if (auto* logo = std::get_if<LogoPayload>(&item.payload)) change(logo->value);
  });
}

void LogoSetSheet::setName(const QString& name) {
  edit([&](LogoValue& logo) { logo.name = name; });
}

QStringList LogoSetSheet::roles() {
  QStringList labels;
  for (const LogoRole role : allCases<LogoRole>()) labels << label(role);
  return labels;
}

void LogoSetSheet::addVariants() {
  const QPointer<LogoSetSheet> self(this);  // the set may go while the dialog is open
  const QStringList paths = services_.dialogs.openFiles({QStringLiteral("image/*")});
  if (self) import(paths);
}

bool LogoSetSheet::takes(const QMimeData& drag) const {
  return services_.drops.offers(drag, DropType::fileURL);
}

bool LogoSetSheet::importDropped(const QMimeData& drop) {
  DroppedThings files = services_.drops.things(drop);
  files.removeIf([](const auto& thing) { return !thing->conforms(DropType::fileURL); });
  const auto paths = std::make_shared<Paths>(Paths{QStringList(files.size()), files.size()});
  for (qsizetype i = 0; i < files.size(); ++i) {
    files.at(i)->loadURL([self = QPointer(this), paths, i](const std::optional<QString>& path) {
      paths->all[i] = path.value_or(QString());
      if (--paths->missing > 0 || !self) return;
      paths->all.removeAll(QString());
      self->import(paths->all);
    });
  }
  return !files.isEmpty();
}

// What is copied when the sheet has closed still lands in the set.
void LogoSetSheet::import(const QStringList& paths) {
  BrandDocument* const document = item_->document();
  if (!document || paths.isEmpty()) return;
  const auto arrived = [document = QPointer(document), set = item_->item().id](const auto& asset) {
    document->updateItem(set, [&](Item& item) {
      if (auto* logo = std::get_if<LogoPayload>(&item.payload)) appendVariant(logo->value, asset);
    });
  };
  importAssets(services_.imports, {.paths = paths, .arrived = arrived}, *document);
}

// What the row shows may stand elsewhere in the document by now.
void LogoSetSheet::editVariant(int row,
                               const std::function<void(QList<LogoVariant>&, qsizetype)>& change) {
  if (row < 0 || row >= variants_.count()) return;
  edit([&, id = variants_.variants().at(row).id](LogoValue& logo) {
    const qsizetype place = indexOf(logo.variants, id);
    if (place >= 0) change(logo.variants, place);
  });
}

void LogoSetSheet::setRole(int row, int role) {
  editVariant(row, [&](auto& variants, qsizetype place) { variants[place].role = LogoRole(role); });
}

void LogoSetSheet::setBackdrop(int row, int backdrop) {
  editVariant(row, [&](auto& variants, qsizetype place) {
    variants[place].background = Backdrop::stored(Backdrop::Kind(backdrop));
  });
}

void LogoSetSheet::remove(int row) {
  editVariant(row, [](auto& variants, qsizetype place) { variants.removeAt(place); });
}

void LogoSetSheet::drag(int row, QQuickItem* view, const QImage& grabbed, qreal radius) {
  if (row < 0 || row >= variants_.count()) return;
  // The sheet may go before the drag ends.
  carryOut(*view, grabbed, radius,
           [drag = actions_.drag, asset = variants_.variants().at(row).asset](
               const DragLook& look) { drag(asset, look); });
}

void LogoSetSheet::ungroup() {
  if (!canUngroup()) return;
  const auto ungroup = actions_.ungroup;  // the sheet goes with the set
  emit finished();
  ungroup();
}

}  // namespace tarnloft
