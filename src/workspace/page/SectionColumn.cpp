#include "workspace/page/SectionColumn.h"

#include "controls/loading/ItemMaking.h"
#include "controls/theme/Typography.h"
#include "workspace/BrandWorkspace.h"
#include "workspace/flow/FlowLayout.h"
#include "workspace/flow/TileFlow.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarnloft {
namespace {

constexpr double spacing = 28;
constexpr size_t mostSpare = 24;  // views that are made while nothing else is to be done
constexpr size_t mostLive = 48;

// As the view lays them out, which corrects what is estimated by them.
constexpr double headHeight = 28 + 10;

double hintHeight() {
  constexpr double padding = 18;
  static const double line = std::ceil(QFontMetricsF(interfaceFont(12)).height());
  return 2 * padding + line;
}

bool showsTiles(const SectionModel& section) {
  const SharedList<Item>& items = section.shownItems();
  return section.isShown() && !std::all_of(items.begin(), items.end(), TileFacts::isBlock);
}

bool isHeld(const QQuickItem& view) {
  const auto* const flow = view.findChild<TileFlow*>();
  return view.hasActiveFocus() || (flow && flow->isHeld());
}

}  // namespace

SectionColumn::SectionColumn(QQuickItem* parent) : QQuickItem(parent) {}

void SectionColumn::setSections(SectionListModel* sections) {
  if (sections_ == sections) return;
  if (sections_) {
    sections_->disconnect(this);
    sections_->workspace().disconnect(this);
  }
  while (!live_.empty()) end(*live_.begin());
  sections_ = sections;
  if (sections_) watch();
  rearranged();
  emit sectionsChanged();
}

void SectionColumn::watch() {
  const SectionListModel* const model = sections_;
  connect(model, &SectionListModel::rowsInserted, this, &SectionColumn::rearranged);
  connect(model, &SectionListModel::rowsMoved, this, &SectionColumn::rearranged);
  connect(model, &SectionListModel::rowsRemoved, this, &SectionColumn::rearranged);
  connect(model, &SectionListModel::updated, this, &SectionColumn::heightsChanged);
  connect(model, &SectionListModel::rowsAboutToBeRemoved, this,
          [this](const QModelIndex&, int first, int last) { endOf(first, last); });
  connect(&model->workspace(), &BrandWorkspace::metricsChanged, this, &SectionColumn::sizesChanged);
}

void SectionColumn::rearranged() {
  areRowsStale_ = true;
  polish();
}

void SectionColumn::heightsChanged() {
  areHeightsStale_ = true;
  polish();
}

void SectionColumn::sizesChanged() {
  for (Row& row : rows_) row.measured.reset();
  heightsChanged();
}

void SectionColumn::setViewTop(qreal top) {
  if (std::exchange(viewTop_, top) == top) return;
  emit viewportChanged();
  polish();
}

void SectionColumn::setViewHeight(qreal height) {
  if (std::exchange(viewHeight_, height) == height) return;
  emit viewportChanged();
  polish();
}

void SectionColumn::setFocusedRow(int row) {
  if (std::exchange(focusedRow_, row) == row) return;
  emit focusedRowChanged();
  polish();
}

void SectionColumn::componentComplete() {
  QQuickItem::componentComplete();
  forceLayout();
}

void SectionColumn::geometryChange(const QRectF& now, const QRectF& before) {
  QQuickItem::geometryChange(now, before);
  if (now.width() == before.width()) return;
  for (const size_t row : live_) rows_[row].view->setWidth(now.width());
  sizesChanged();
}

// The rows are those of the model, as high as they are now.
void SectionColumn::follow() {
  if (std::exchange(areRowsStale_, false)) rebuildRows();
  areHeightsStale_ = false;
  takeHeights();
  setOut();
}

void SectionColumn::rebuildRows() {
  QHash<SectionModel*, Row> known;
  for (const Row& row : rows_) known.insert(row.section, row);
  rows_.clear();
  live_.clear();
  if (!sections_) return;
  for (const auto& model : sections_->models()) {
    const auto row = known.find(model.get());
    if (row != known.end() && row->view) live_.insert(rows_.size());
    rows_.push_back(row == known.end() ? Row{model.get()} : std::move(*row));
  }
  isOrderStale_ = true;
  for (const size_t row : live_) focusMoved(rows_[row].view);
}

// True if one has changed.
bool SectionColumn::takeHeights() {
  bool hasChanged = false;
  for (Row& row : rows_) {
    const bool wasShown = std::exchange(row.isShown, row.section->isShown());
    const double before = row.height;
    const SharedList<Item>& items = row.section->shownItems();
    if (!row.isShown) {
      row.height = 0;
      row.measured.reset();
    } else if (row.view) {
      row.height = row.view->implicitHeight();
      row.measured = items;
    } else if (!row.measured || !(*row.measured == items)) {
      row.height = estimatedHeight(*row.section);
      row.measured = items;
    }
    hasChanged = hasChanged || row.isShown != wasShown || row.height != before;
  }
  return hasChanged;
}

double SectionColumn::estimatedHeight(const SectionModel& section) const {
  if (section.isEmpty()) return headHeight + hintHeight();
  const FlowMetrics metrics = sections_->workspace().flowMetrics();
  const SharedList<Item>& items = section.shownItems();
  FlowLayout layout;
  layout.setOut(items, width(), metrics, [&](int index) {
    return TileHeights::estimate(items.at(index), metrics, width(), layout.columnWidth());
  });
  return headHeight + layout.height();
}

void SectionColumn::setOut() {
  double top = 0;
  double bottom = 0;
  for (Row& row : rows_) {
    row.top = top;
    if (!row.isShown) continue;
    bottom = row.bottom();
    top = bottom + spacing;
  }
  setImplicitHeight(bottom);
}

// What is at the top of the strip stays there.
void SectionColumn::correctHeights() {
  areHeightsStale_ = false;
  const size_t anchor = firstReaching(viewTop_);
  const bool isAbove = viewTop_ > 0 && anchor < rows_.size();
  const double before = isAbove ? rows_[anchor].top : 0;
  if (!takeHeights()) return;
  setOut();
  const double shift = isAbove ? rows_[anchor].top - before : 0;
  if (shift != 0) emit shifted(shift);
}

// The first row that ends below that.
size_t SectionColumn::firstReaching(double top) const {
  const auto row = std::partition_point(rows_.begin(), rows_.end(),
                                        [&](const Row& one) { return one.bottom() <= top; });
  return size_t(row - rows_.begin());
}

void SectionColumn::forceLayout() {
  if (!isComponentComplete()) return;
  follow();
  polish();
}

qreal SectionColumn::topOf(int row) {
  if (areRowsStale_) follow();
  return row >= 0 && size_t(row) < rows_.size() ? rows_[size_t(row)].top : 0;
}

QQuickItem* SectionColumn::firstWithTiles() {
  follow();
  const auto first = std::find_if(rows_.begin(), rows_.end(),
                                  [](const Row& row) { return showsTiles(*row.section); });
  return first == rows_.end() ? nullptr : show(size_t(first - rows_.begin()));
}

// What is seen is made at once; what is near it, a little in each of the next frames.
void SectionColumn::updatePolish() {
  if (!component_) return;
  if (areRowsStale_) follow();
  if (areHeightsStale_) correctHeights();
  while (populate(0)) {
    margin_ = 0;
    correctHeights();
  }
  if (populate(margin_)) correctHeights();
  constexpr double step = 160;
  const bool isMore = margin_ < viewHeight_ || addAnother();
  margin_ = std::min(margin_ + step, viewHeight_);
  if (isMore) QMetaObject::invokeMethod(this, &SectionColumn::polish, Qt::QueuedConnection);
  trim();
  place();
}

bool SectionColumn::isNear(const Row& row, double margin) const {
  return row.isShown && row.bottom() > viewTop_ - margin &&
         row.top < viewTop_ + viewHeight_ + margin;
}

// The Tab key may lead there next.
bool SectionColumn::isReachable(size_t row) const {
  return focusedRow_ >= 0 && std::abs(int(row) - focusedRow_) <= 1;
}

// True if there are views that were not there before.
bool SectionColumn::populate(double margin) {
  const size_t before = live_.size();
  const double bottom = viewTop_ + viewHeight_ + margin;
  for (size_t row = firstReaching(viewTop_ - margin); row < rows_.size(); ++row) {
    if (rows_[row].top >= bottom) break;
    if (isNear(rows_[row], margin)) show(row);
  }
  for (int row = std::max(0, focusedRow_ - 1); focusedRow_ >= 0 && row <= focusedRow_ + 1; ++row) {
    if (size_t(row) < rows_.size() && rows_[size_t(row)].isShown) show(size_t(row));
  }
  return live_.size() > before;
}

// One more of those that nobody sees yet, the nearest first, so that a page of some sections is
// soon there as a whole. False if there is none.
bool SectionColumn::addAnother() {
  const auto add = [this](size_t row) {
    return row < rows_.size() && rows_[row].isShown && !rows_[row].view && show(row);
  };
  const size_t near = firstReaching(viewTop_);
  for (size_t distance = 0; distance < mostSpare && live_.size() < mostSpare; ++distance) {
    if (add(near + distance) || add(near - 1 - distance)) return true;
  }
  return false;
}

// The farthest go, down to those that are made unasked.
void SectionColumn::trim() {
  if (live_.size() <= mostLive) return;
  std::vector<std::pair<double, size_t>> far;
  for (const size_t row : live_) {
    const bool isWanted = isNear(rows_[row], viewHeight_) || isReachable(row);
    if (!isWanted && !isHeld(*rows_[row].view))
      far.emplace_back(std::abs(rows_[row].top - viewTop_), row);
  }
  std::sort(far.begin(), far.end());
  for (; !far.empty() && live_.size() > mostSpare; far.pop_back()) end(far.back().second);
}

// The section's view, made if there was none; null if none can be made.
QQuickItem* SectionColumn::show(size_t row) {
  if (!rows_[row].view && (rows_[row].view = make(*rows_[row].section, rows_[row].top))) {
    live_.insert(row);
    isOrderStale_ = true;
    areHeightsStale_ = true;
  }
  return rows_[row].view;
}

QQuickItem* SectionColumn::make(SectionModel& section, double top) {
  QQuickItem* const view = makeItem(*component_, *this, [&](QQuickItem& item) {
    item.setWidth(width());
    item.setY(top);
    return QVariantMap{{QStringLiteral("section"), QVariant::fromValue(&section)}};
  });
  if (!view) return nullptr;
  connect(view, &QQuickItem::implicitHeightChanged, this, &SectionColumn::heightsChanged);
  connect(view, &QQuickItem::activeFocusChanged, this, [this, view] { focusMoved(view); });
  return view;
}

// It may be in the middle of a call.
void SectionColumn::end(size_t row) {
  QQuickItem* const view = std::exchange(rows_[row].view, nullptr);
  live_.erase(row);
  view->disconnect(this);
  view->setVisible(false);
  view->deleteLater();
}

// In front of their models, which are about to go.
void SectionColumn::endOf(int first, int last) {
  const auto& models = sections_->models();
  const auto isGoing = [&](const Row& row) {
    return std::any_of(models.begin() + first, models.begin() + last + 1,
                       [&](const auto& model) { return model.get() == row.section; });
  };
  const std::set<size_t> before = live_;
  for (const size_t row : before) {
    if (isGoing(rows_[row])) end(row);
  }
}

void SectionColumn::focusMoved(const QQuickItem* view) {
  if (!view->hasActiveFocus()) return;
  for (const size_t row : live_) {
    if (rows_[row].view == view) setFocusedRow(int(row));
  }
}

// Children stand in the order in which the Tab key and assistive technology go through them.
void SectionColumn::place() {
  QQuickItem* before = nullptr;
  for (const size_t row : live_) {
    QQuickItem* const view = rows_[row].view;
    view->setY(rows_[row].top);
    view->setProperty("reachable", isReachable(row));
    if (isOrderStale_ && before) view->stackAfter(before);
    before = view;
  }
  isOrderStale_ = false;
}

}  // namespace tarnloft
