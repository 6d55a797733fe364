#include "workspace/flow/TileFlow.h"

#include "workspace/BrandWorkspace.h"

#include <QKeyEvent>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarnloft {

using namespace std::chrono_literals;

// Runs while views are on their way, once a frame.
class TileFlow::Clock : public QAbstractAnimation {
 public:
  explicit Clock(TileFlow& flow) : flow_(flow) {}
  int duration() const override { return -1; }

 protected:
  void updateCurrentTime(int now) override {
    flow_.advance((now - std::exchange(last_, now)) / 1000.0);
  }
  void updateState(State /*now*/, State /*before*/) override { last_ = 0; }

 private:
  TileFlow& flow_;
  int last_ = 0;
};

namespace {

std::optional<FlowLayout::Direction> directionOf(int key) {
  using Direction = FlowLayout::Direction;
  switch (key) {
    case Qt::Key_Left: return Direction::left;
    case Qt::Key_Right: return Direction::right;
    case Qt::Key_Up: return Direction::up;
    case Qt::Key_Down: return Direction::down;
    case Qt::Key_Home: return Direction::first;
    case Qt::Key_End: return Direction::last;
    default: return std::nullopt;
  }
}

}  // namespace

TileFlow::TileFlow(QQuickItem* parent)
    : QQuickItem(parent), live_(*this), clock_(std::make_unique<Clock>(*this)) {
  setAcceptedMouseButtons(Qt::RightButton);
  tidying_.setSingleShot(true);
  tidying_.setInterval(1s);
  tidying_.callOnTimeout(this, [this] {
    constexpr size_t mostWaiting = 12;
    live_.trim(mostWaiting);
  });
}

TileFlow::~TileFlow() = default;

void TileFlow::setSection(SectionModel* section) {
  if (section_ == section) return;
  if (section_) {
    section_->items()->disconnect(this);
    section_->workspace()->disconnect(this);
  }
  live_.clear();
  section_ = section;
  if (section_) watch(*section_->items());
  itemsChanged(true);
  emit sectionChanged();
}

void TileFlow::watch(const ItemListModel& items) {
  connect(&items, &ItemListModel::modelReset, this, [this] { margin_ = 0; });
  connect(&items, &ItemListModel::updated, this, &TileFlow::itemsChanged);
  connect(&items, &ItemListModel::dataChanged, this, &TileFlow::showChanged);
  connect(section_->workspace(), &BrandWorkspace::metricsChanged, this, &TileFlow::sizesChanged);
}

void TileFlow::setViewTop(qreal top) {
  if (std::exchange(viewTop_, top) == top) return;
  emit viewportChanged();
  polish();
}

void TileFlow::setViewHeight(qreal height) {
  if (std::exchange(viewHeight_, height) == height) return;
  emit viewportChanged();
  polish();
}

void TileFlow::setReachable(bool reachable) {
  if (std::exchange(reachable_, reachable) == reachable) return;
  emit reachableChanged();
  layoutChanged();
}

void TileFlow::componentComplete() {
  QQuickItem::componentComplete();
  setOut();
}

void TileFlow::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.width() != before.width()) sizesChanged();
}

// The height follows at once, so that the page isn't lower for a moment and scrolls.
void TileFlow::itemsChanged(bool areOthers) {
  areItemsStale_ = areItemsStale_ || areOthers;
  isMoving_ = animated_;
  setOut();
  polish();
}

void TileFlow::showChanged(const QModelIndex& first, const QModelIndex& last) {
  for (int row = first.row(); row <= last.row(); ++row) {
    const Item& item = section_->items()->items().at(row);
    const bool hasView = live_.find(item.id);
    if (hasView && !live_.follow(item)) areItemsStale_ = true;
  }
}

void TileFlow::layoutChanged() {
  isLayoutStale_ = true;
  polish();
}

void TileFlow::sizesChanged() {
  measured_.clear();
  layoutChanged();
}

void TileFlow::setOut() {
  if (!section_ || !isComponentComplete()) return;
  isLayoutStale_ = false;
  populated_ = {};
  metrics_ = section_->workspace()->flowMetrics();
  layout_.setOut(section_->items()->items(), width(), metrics_,
                 [this](int index) { return measuredHeight(index); });
  setImplicitHeight(layout_.height());
}

bool TileFlow::isMeasured(const Item& item) const {
  return TileFacts::isBlock(item) || TileHeights::isEstimate(item, metrics_);
}

double TileFlow::measuredHeight(int index) const {
  const Item& item = section_->items()->items().at(index);
  const auto measured = measured_.constFind(item.id);
  if (measured != measured_.constEnd()) return *measured;
  return TileHeights::estimate(item, metrics_, width(), layout_.columnWidth());
}

void TileFlow::updatePolish() {
  if (!section_ || !tile_ || !block_) return;
  if (isLayoutStale_) setOut();
  populate();
  constexpr int mostRounds = 4;  // a measured height may bring others into sight
  for (int round = 0; round < mostRounds && measureViews(); ++round) {
    keepPlace([this] { setOut(); });
    populate();
  }
  placeViews();
  isMoving_ = false;
  hasShown_ = true;
}

// What is seen is made at once; what is near it, a little in each of the next frames.
FlowLayout::Range TileFlow::wantedRange() {
  constexpr double step = 80;  // points a frame, less than a row
  const double most = viewHeight_ / 2;
  const double margin = std::min(margin_, most);
  if (margin_ < most) {
    margin_ += step;
    QMetaObject::invokeMethod(this, &TileFlow::polish, Qt::QueuedConnection);
  }
  return layout_.range(viewTop_ - margin, viewTop_ + viewHeight_ + margin);
}

void TileFlow::populate() {
  const auto wanted = wantedRange();
  if (!areItemsStale_ && !isOrderStale_ && wanted == populated_) return;
  const SharedList<Item>& items = section_->items()->items();
  if (std::exchange(areItemsStale_, false)) {
    isOrderStale_ = true;
    const int focused = focusedIndex();
    live_.forEach([](LiveTile& live) { live.index = -1; });
    int index = 0;
    for (const Item& item : items) {
      if (LiveTile* const live = live_.follow(item)) live->index = index;
      ++index;
    }
    if (focused >= 0 && focusedIndex() < 0) handOverFocus(focused);
    live_.forEach([this](LiveTile& live) { letFade(live); });
  }
  const int tabStop = reachable_ ? currentIndex() : -1;
  live_.releaseIf([&](const LiveTile& live) {
    const bool isWanted =
        wanted.contains(live.index) || live.index == tabStop || live.motion.isMoving();
    return !(isWanted && live.index >= 0) && !live.isHeld();
  });
  live_.forEachFading([this](LiveTile&) { clock_->start(); });
  QQuickItem* before = nullptr;
  if (tabStop >= 0 && tabStop < wanted.first) before = show(tabStop, before);
  for (int index = wanted.first; index < wanted.last; ++index) before = show(index, before);
  if (tabStop >= wanted.last) (void)show(tabStop, before);
  populated_ = wanted;
  isOrderStale_ = false;
}

// One whose item isn't shown any more fades where it stands, unless others stand there by now.
void TileFlow::letFade(LiveTile& live) {
  const bool isInside = live.motion.position().y() + live.view->height() <= layout_.height();
  live.mayFade = live.index < 0 && isMoving_ && live.isPlaced && isInside;
}

void TileFlow::appear(LiveTile& live) {
  const bool isFading = isMoving_ && hasShown_;
  live.show(isFading ? live.fade.position().x() : LiveTile::opaque);
  live.fade.aim({LiveTile::opaque, 0});
  if (isFading) clock_->start();
}

// Makes the item's view exist, behind the other in the order of the Tab key.
QQuickItem* TileFlow::show(int index, QQuickItem* before) {
  const Item& item = section_->items()->items().at(index);
  QQmlComponent& component = TileFacts::isBlock(item) ? *block_ : *tile_;
  LiveTile* live = live_.obtain(*section_, item, component, layout_.rect(index).size());
  if (!live) return before;
  if (!live->isWatched) {
    connect(live->view, &QQuickItem::activeFocusChanged, this, &TileFlow::focusMoved);
    live->isWatched = true;
  }
  live->index = index;
  if (!live->isPlaced) appear(*live);
  if (isOrderStale_ || !live->isPlaced) stack(*live->view, before);
  if (!TileFacts::isBlock(item)) live->view->setActiveFocusOnTab(item.id == current_);
  return live->view;
}

// Children stand in the order in which the Tab key and assistive technology go through them.
void TileFlow::stack(QQuickItem& view, QQuickItem* before) {
  if (before) return view.stackAfter(before);
  QQuickItem* const first = childItems().constFirst();
  if (first != &view) view.stackBefore(first);
}

// Where the Tab key leads: the tile that last had the keyboard, else the first one; -1 without any.
int TileFlow::currentIndex() {
  const LiveTile* live = live_.find(current_);
  if (live && live->index >= 0) return live->index;
  const int first = layout_.neighbour(0, FlowLayout::Direction::first);
  current_ = first < 0 ? QUuid() : section_->items()->items().at(first).id;
  return first;
}

// True if a view isn't as high as it was laid out.
bool TileFlow::measureViews() {
  bool isOff = false;
  live_.forEach([&](LiveTile& live) {
    if (live.index < 0 || !isMeasured(live.tile->item())) return;
    live.view->setWidth(layout_.rect(live.index).width());
    const double height = std::ceil(live.view->implicitHeight());
    isOff = isOff || height != measuredHeight(live.index);
    measured_[live.tile->item().id] = height;
  });
  return isOff;
}

// What is at the top of the strip stays there.
void TileFlow::keepPlace(const std::function<void()>& change) {
  const int first = layout_.range(viewTop_, viewTop_ + viewHeight_).first;
  const bool isAbove = viewTop_ > 0 && first < layout_.count();
  const double before = isAbove ? layout_.rect(first).top() : 0;
  change();
  const double shift = isAbove ? layout_.rect(first).top() - before : 0;
  if (shift != 0) emit shifted(shift);
}

void TileFlow::placeViews() {
  live_.forEach([this](LiveTile& live) {
    if (live.index >= 0) put(live, layout_.rect(live.index));
  });
  tidying_.start();
}

void TileFlow::put(LiveTile& live, const QRectF& rect) {
  live.view->setSize(rect.size());
  if (isMoving_ && live.isPlaced) {
    live.motion.aim(rect.topLeft());
    if (live.motion.isMoving()) clock_->start();
  } else if (!live.motion.isMoving() || live.motion.target() != rect.topLeft()) {
    live.motion.settle(rect.topLeft());
    live.view->setPosition(rect.topLeft());
  }
  live.isPlaced = true;
}

void TileFlow::advance(double seconds) {
  bool areMoving = false;
  const auto fade = [&](LiveTile& live) {
    live.fade.advance(seconds);
    live.view->setOpacity(std::clamp(live.fade.position().x() / LiveTile::opaque, 0.0, 1.0));
    areMoving = areMoving || live.fade.isMoving();
  };
  live_.forEach([&](LiveTile& live) {
    if (live.fade.isMoving()) fade(live);
    if (!live.motion.isMoving()) return;
    live.motion.advance(seconds);
    live.view->setPosition(live.motion.position());
    areMoving = areMoving || live.motion.isMoving();
  });
  live_.forEachFading([&](LiveTile& live) {
    fade(live);
    live.view->setVisible(live.fade.isMoving());
  });
  if (areMoving) return;
  clock_->stop();
  populated_ = {};  // those that have moved out of sight may go
  polish();
}

bool TileFlow::focusFirst() {
  const int first = layout_.neighbour(0, FlowLayout::Direction::first);
  if (first >= 0) focusTile(first);
  return first >= 0;
}

bool TileFlow::isHeld() const {
  bool isHeld = false;
  live_.forEach([&](const LiveTile& live) { isHeld = isHeld || live.isHeld(); });
  return isHeld;
}

int TileFlow::focusedIndex() const {
  int index = -1;
  live_.forEach([&](const LiveTile& live) {
    if (live.view->hasActiveFocus()) index = live.index;
  });
  return index;
}

// Here, for all tiles: an area for it over each would take a finger's taps.
void TileFlow::mousePressEvent(QMouseEvent* event) {
  const LiveTile* hit = nullptr;
  live_.forEach([&](const LiveTile& live) {
    if (live.view->contains(mapToItem(live.view, event->position()))) hit = &live;
  });
  event->setAccepted(hit && requestMenu(hit, mapToItem(hit->view, event->position())));
}

// Blocks have menus of their text.
bool TileFlow::requestMenu(const LiveTile* live, const QPointF& at) {
  if (!live || TileFacts::isBlock(live->tile->item())) return false;
  live->view->forceActiveFocus(Qt::MouseFocusReason);
  emit menuRequested(live->tile, live->view, at);
  return true;
}

void TileFlow::keyPressEvent(QKeyEvent* event) {
  const int from = focusedIndex();
  const bool isMenuKey = event->key() == Qt::Key_Menu ||
                         (event->key() == Qt::Key_F10 && event->modifiers() & Qt::ShiftModifier);
  if (isMenuKey && from >= 0) {
    const LiveTile* const live = live_.find(section_->items()->items().at(from).id);
    const QRectF rect = live ? live->view->boundingRect() : QRectF();
    return event->setAccepted(requestMenu(live, rect.center()));
  }
  const auto direction = directionOf(event->key());
  event->setAccepted(direction && from >= 0 && !layout_.isBlock(from));
  if (event->isAccepted()) focusTile(layout_.neighbour(from, *direction));
}

void TileFlow::focusTile(int index) {
  (void)show(index, nullptr);
  isOrderStale_ = true;  // it gets its place among the others when they are shown
  polish();
  LiveTile* live = live_.find(section_->items()->items().at(index).id);
  if (!live) return;
  put(*live, layout_.rect(index));
  live->view->forceActiveFocus(Qt::TabFocusReason);
}

// The item with the keyboard has gone: the tile that took its place gets it.
void TileFlow::handOverFocus(int from) {
  const int last = int(section_->items()->items().size()) - 1;
  const int index = layout_.nearestTile(std::min(from, last));
  if (index >= 0) return focusTile(index);
  live_.forEach([](LiveTile& live) {
    if (live.view->hasActiveFocus()) live.view->setFocus(false);
  });
}

// However the keyboard came to it: the tile is where the Tab key leads from now on.
void TileFlow::focusMoved() {
  const int index = focusedIndex();
  if (index < 0 || layout_.isBlock(index)) return;
  const QUuid before = std::exchange(current_, section_->items()->items().at(index).id);
  if (before == current_) return;
  if (const LiveTile* live = live_.find(before)) live->view->setActiveFocusOnTab(false);
  live_.find(current_)->view->setActiveFocusOnTab(true);
}

}  // namespace tarnloft
