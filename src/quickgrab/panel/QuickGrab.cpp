#include "quickgrab/panel/QuickGrab.h"

#include "assets/FontManager.h"
#include "controls/dragging/Carrying.h"
#include "model/ShownText.h"
#include "pictures/HexColor.h"

#include <QPointer>
#include <QUrl>

#include <chrono>
#include <utility>

namespace tarnloft {
namespace {

using namespace std::chrono_literals;

constexpr auto flashTime = 1300ms;
constexpr auto copyPatience = 1s;  // with a file's copy for a drag
constexpr int beyondSight = 60;    // points above and below that are made ahead

}  // namespace

QuickGrab::QuickGrab(const QuickGrabServices& services)
    : services_(services), library_(services.library), prefs_(services.prefs) {
  for (const auto signal : {&LibraryStore::brandsChanged, &LibraryStore::selectionChanged,
                            &LibraryStore::openDocumentChanged, &LibraryStore::brandChanged}) {
    connect(&library_, signal, this, &QuickGrab::scheduleUpdate);
  }
  connect(&prefs_, &MenuBarPrefs::assetTypesChanged, this, &QuickGrab::scheduleUpdate);
  connect(&library_.preferences(), &LibraryPreferences::colorCopyFormatChanged, this,
          &QuickGrab::scheduleUpdate);
  flashEnd_.setSingleShot(true);
  flashEnd_.setInterval(flashTime);
  connect(&flashEnd_, &QTimer::timeout, this, [this] { flash(QString()); });
}

void QuickGrab::setActive(bool isActive) {
  if (isActive_ == isActive) return;
  isActive_ = isActive;
  if (!isActive) {
    flash(QString());
    setCurrentPlace(-1);
  } else if (isStale_) {
    update();
  } else {
    placeCurrent();
  }
}

void QuickGrab::setHasSettings(bool has) {
  if (std::exchange(hasSettings_, has) != has) emit hasSettingsChanged();
}

void QuickGrab::setSearch(const QString& text) {
  if (search_ == text) return;
  search_ = text;
  setCurrentPlace(-1);
  sightTop_ = 0;
  emit searchChanged();
  isStale_ ? update() : filter();
  emit rewound();
}

// Several changes may come in one turn of the event loop.
void QuickGrab::scheduleUpdate() {
  isStale_ = true;
  if (!isActive_ || std::exchange(isUpdateDue_, true)) return;
  QMetaObject::invokeMethod(
      this,
      [this] {
        isUpdateDue_ = false;
        if (isStale_ && isActive_) update();
      },
      Qt::QueuedConnection);
}

GrabbedKinds QuickGrab::kinds() const {
  return {prefs_.showColors(), prefs_.showLogos(), prefs_.showType(), prefs_.showGradients(),
          prefs_.showCode()};
}

void QuickGrab::update() {
  isStale_ = false;
  const BrandDocument* const open = library_.openDocument();
  const QString package = open ? open->packageURL() : QString();
  const bool isOther = std::exchange(packageURL_, package) != package;
  if (isOther) sightTop_ = 0;
  sections_ = open ? open->brand().sections : QList<Section>();
  brandSearch_.follow(sections_);
  registerFonts();
  filter();
  emit brandChanged();
  if (isOther) emit rewound();
}

void QuickGrab::filter() {
  const QString query = search_.trimmed();
  content_ =
      GrabContent(query.isEmpty() ? sectionBlocks(sections_, kinds())
                                  : sectionBlocks(sections_, kinds(), brandSearch_.matches(query)));
  placeCurrent();
  showList();
  emit changed();
}

// A font draws by its family from its registration on; it costs, so only where fonts are shown.
void QuickGrab::registerFonts() {
  const BrandDocument* const open = library_.openDocument();
  if (!open || library_.isPlain() || !prefs_.showType() ||
      std::exchange(fontsOf_, packageURL_) == packageURL_)
    return;
  services_.workers.start(
      [brand = open->brand(), package = open->files(), &fonts = services_.fonts] {
        FontManager::registerAll(brand, package, fonts);
      });
}

void QuickGrab::setSight(int top, int height) {
  sightTop_ = top;
  sightHeight_ = height;
  showList();
}

void QuickGrab::showList() {
  const auto [first, last] =
      layout().between(sightTop_ - beyondSight, sightTop_ + sightHeight_ + beyondSight);
  const BrandDocument* const open = library_.openDocument();
  const GrabContent::Look look{library_.preferences().colorCopyFormat(),
                               open ? std::optional(open->files()) : std::nullopt};
  QList<GrabThing> things;
  things.reserve(qsizetype(last - first));
  for (size_t place = first; place < last; ++place) things << content_.thing(place, look);
  if (std::exchange(things_, things) != things) emit thingsChanged();
}

QuickGrab::State QuickGrab::state() const {
  if (sections_.isEmpty()) return State::NoBrand;
  if (!prefs_.hasAnyAssetTypeEnabled()) return State::NoTypes;
  if (!content_.isEmpty()) return State::List;
  return search_.isEmpty() ? State::Nothing : State::NoMatches;
}

QString QuickGrab::brandName() const {
  const BrandDocument* const open = library_.openDocument();
  return open ? shownText(open->brand().name) : QString();
}

EmblemLook QuickGrab::emblem() const {
  const BrandDocument* const open = library_.openDocument();
  const QString symbol = QStringLiteral("square.grid.2x2");
  if (!open) return emblemLook(std::nullopt, {symbol, {}, {}, std::nullopt});
  const Brand& brand = open->brand();
  const auto accent = brand.accentHex ? std::optional(shownColor(*brand.accentHex)) : std::nullopt;
  return emblemLook(brand.emblem, {symbol, open->packageURL(), brand.name, accent});
}

QVariantList QuickGrab::brands() const {
  QVariantList choices;
  for (const BrandSummary& brand : library_.brands()) {
    const bool isSelected = library_.selection() == brand.packageURL;
    choices << QVariant::fromValue(
        BrandChoice{shownText(brand.name), brand.packageURL, isSelected});
  }
  return choices;
}

void QuickGrab::chooseBrand(const QString& packageURL) {
  if (library_.selection() != packageURL) library_.select(packageURL);
}

// Where the current entry stands by now; while there is a search, the first one in its place.
void QuickGrab::placeCurrent() {
  std::optional<size_t> place;
  if (!currentID_.isNull()) {
    for (size_t i = 0; i < layout().things.size() && !place; ++i) {
      if (layout().things[i].isEntry() && content_.idOf(i) == currentID_) place = i;
    }
  }
  if (!place && !search_.trimmed().isEmpty()) place = layout().first();
  setCurrentPlace(place ? int(*place) : -1);
}

// All that shows asks then whether it is the one.
void QuickGrab::setCurrentPlace(int place) {
  const int before = std::exchange(current_, place);
  currentID_ = place < 0 ? QUuid() : content_.idOf(size_t(place));
  const QRect room = place < 0 ? QRect() : layout().things[size_t(place)].room;
  if (std::exchange(currentRoom_, room) != room || before != place) emit currentChanged();
}

void QuickGrab::setCurrent(int place) {
  const bool isEntry = place >= 0 && size_t(place) < layout().things.size() &&
                       layout().things[size_t(place)].isEntry();
  setCurrentPlace(isEntry ? place : -1);
}

bool QuickGrab::move(Step step) {
  PanelLayout::Place place;
  if (current_ < 0 || step == Step::First) {
    place = layout().first();
  } else {
    const auto from = size_t(current_);
    switch (step) {
      case Step::Left: place = layout().beside(from, -1); break;
      case Step::Right: place = layout().beside(from, 1); break;
      case Step::Up: place = layout().above(from); break;
      case Step::Down: place = layout().below(from); break;
      case Step::PageUp:
      case Step::PageDown: {
        const int far = layout().things[from].room.top();
        for (PanelLayout::Place at = from; at;) {
          place = at;
          if (std::abs(layout().things[*at].room.top() - far) >= sightHeight_ * 3 / 4) break;
          at = step == Step::PageUp ? layout().above(*at) : layout().below(*at);
        }
        break;
      }
      default: place = layout().last();
    }
  }
  if (!place) return false;
  setCurrentPlace(int(*place));
  return true;
}

void QuickGrab::copy(int place) {
  const auto copied = content_.copyOf(place, library_.preferences().colorCopyFormat());
  if (!copied) return;
  if (copied->text) services_.pasteboard.setText(*copied->text);
  flash(copied->told);
}

void QuickGrab::copyColor(int number) { copy(content_.colorPlace(number)); }

std::function<QList<DragItem>()> QuickGrab::dragWork(const MediaEntry& entry) const {
  return
      [&files = services_.files, package = library_.openDocument()->files(), asset = entry.asset] {
        return QList<DragItem>{TileDrag::variantProvider(files, package, asset)};
      };
}

// None if there is no file to be had, which is told where it may be there in a moment.
std::optional<DragItem> QuickGrab::prepared(const MediaEntry& entry) {
  if (!library_.openDocument()) return std::nullopt;
  const auto items =
      dragPreparation_.make(packageURL_ + entry.asset.filename, dragWork(entry), copyPatience);
  if (!items) flash(QStringLiteral("Still copying “%1” · Try again").arg(entry.name));
  return items && items->first().file ? std::optional(items->first()) : std::nullopt;
}

void QuickGrab::drag(int place, QQuickItem* view, const QImage& grabbed, qreal radius) {
  const MediaEntry* const entry = content_.media(place);
  if (!entry || isDragging_) return;
  const auto item = prepared(*entry);
  if (!item) return;
  const QPointer<QuickGrab> self(this);
  isDragging_ = true;
  carryOut(*view, grabbed, radius, [&session = services_.dragSession, item](const DragLook& look) {
    session.drag({*item}, look);
  });
  if (!self) return;
  isDragging_ = false;
  emit dragEnded();
}

void QuickGrab::copyFile(int place) {
  const MediaEntry* const entry = content_.media(place);
  const auto item = entry ? prepared(*entry) : std::nullopt;
  if (!item) return;
  const QByteArray url = QUrl::fromLocalFile(*item->file).toEncoded();
  // The second is how file managers tell a copy from a cut.
  services_.pasteboard.setForms({{QStringLiteral("text/uri-list"), url + "\r\n"},
                                 {QStringLiteral("x-special/gnome-copied-files"), "copy\n" + url}});
  flash(QStringLiteral("Copied ") + entry->asset.originalName);
}

// A later text has its own full time.
void QuickGrab::flash(const QString& text) {
  const QString shown = shownText(text);
  text.isEmpty() ? flashEnd_.stop() : flashEnd_.start();
  if (std::exchange(flashText_, shown) != shown) emit flashTextChanged();
}

}  // namespace tarnloft
