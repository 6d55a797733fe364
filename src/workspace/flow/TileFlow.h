#pragma once

#include "workspace/flow/FlowLayout.h"
#include "workspace/flow/LiveTiles.h"

#include <QAbstractAnimation>
#include <QTimer>

namespace tarnloft {

// The content of a section: blocks of text and a grid of tiles, of which only those near the
// viewport exist. Views follow their item, by id, wherever it moves, and move there along a spring;
// one that scrolls out of sight serves another item of its kind. It asks for the height that all
// would take. The arrow keys lead from tile to tile; it is one stop of the Tab key.
class TileFlow : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(
      tarnloft::SectionModel* section READ section WRITE setSection NOTIFY sectionChanged REQUIRED)
  // Make the views, which have a required property `tile`. A tile is given its size, and one that
  // is `pressed` serves no other item; a block is given its width, and it tells its height by its
  // implicit one.
  Q_PROPERTY(QQmlComponent* tile MEMBER tile_ NOTIFY viewsChanged REQUIRED)
  Q_PROPERTY(QQmlComponent* block MEMBER block_ NOTIFY viewsChanged REQUIRED)
  // The strip that is seen, in this item's coordinates.
  Q_PROPERTY(qreal viewTop MEMBER viewTop_ WRITE setViewTop NOTIFY viewportChanged)
  Q_PROPERTY(qreal viewHeight MEMBER viewHeight_ WRITE setViewHeight NOTIFY viewportChanged)
  // Whether the Tab key may come here. If so, the tile at which it stops exists wherever it is.
  Q_PROPERTY(bool reachable MEMBER reachable_ WRITE setReachable NOTIFY reachableChanged)
  // Whether views move to new places or stand there at once.
  Q_PROPERTY(bool animated MEMBER animated_ NOTIFY animatedChanged)

 public:
  explicit TileFlow(QQuickItem* parent = nullptr);
  ~TileFlow() override;

  SectionModel* section() const { return section_; }
  void setSection(SectionModel* section);
  void setViewTop(qreal top);
  void setViewHeight(qreal height);
  void setReachable(bool reachable);

  // Gives the first tile the keyboard; false if there is none.
  Q_INVOKABLE bool focusFirst();

  // A view has the keyboard or an open menu, or is being dragged.
  bool isHeld() const;
  // Views that exist, those that wait for another item included.
  int liveCount() const { return live_.count(); }
  // Views that have been made since the beginning.
  int madeCount() const { return live_.madeCount(); }

 signals:
  void sectionChanged();
  void viewsChanged();
  void viewportChanged();
  void reachableChanged();
  void animatedChanged();
  // A right click on a tile, or the menu key while it has the keyboard; `at` in the view.
  void menuRequested(tarnloft::Tile* tile, QQuickItem* view, const QPointF& at);
  // What stands above the strip turned out to be higher by that much.
  void shifted(qreal by);

 protected:
  void componentComplete() override;
  void updatePolish() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  class Clock;

  void watch(const ItemListModel& items);
  void itemsChanged(bool areOthers);
  void showChanged(const QModelIndex& first, const QModelIndex& last);
  void layoutChanged();
  void sizesChanged();
  void setOut();
  double measuredHeight(int index) const;
  FlowLayout::Range wantedRange();
  void populate();
  void letFade(LiveTile& live);
  void appear(LiveTile& live);
  bool isMeasured(const Item& item) const;
  bool measureViews();
  void keepPlace(const std::function<void()>& change);
  void placeViews();
  void put(LiveTile& live, const QRectF& rect);
  void advance(double seconds);
  QQuickItem* show(int index, QQuickItem* before);
  void stack(QQuickItem& view, QQuickItem* before);
  int currentIndex();
  int focusedIndex() const;
  void focusTile(int index);
  void handOverFocus(int from);
  void focusMoved();
  bool requestMenu(const LiveTile* live, const QPointF& at);

  SectionModel* section_ = nullptr;
  QQmlComponent* tile_ = nullptr;
  QQmlComponent* block_ = nullptr;
  qreal viewTop_ = 0;
  qreal viewHeight_ = 0;
  bool reachable_ = true;
  bool animated_ = true;
  bool isLayoutStale_ = true;
  bool areItemsStale_ = true;
  bool isOrderStale_ = true;  // children may not stand in the order of their items
  bool isMoving_ = false;     // the next placing moves views
  bool hasShown_ = false;     // those that come now come to others
  FlowLayout layout_;
  FlowLayout::Range populated_;
  double margin_ = 0;  // beyond the strip that is seen, in which views exist as well
  FlowMetrics metrics_;
  QHash<QUuid, double> measured_;  // heights of views that are measured, at this width
  QUuid current_;                  // the one tile that the Tab key stops at
  LiveTiles live_;
  std::unique_ptr<Clock> clock_;
  QTimer tidying_;  // of views that wait, at rest: the next letter may need them again
};

}  // namespace tarnloft
