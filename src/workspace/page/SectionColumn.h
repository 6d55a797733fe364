#pragma once

#include "workspace/page/SectionListModel.h"

#include <QQmlComponent>
#include <QQuickItem>

#include <optional>
#include <set>
#include <vector>

namespace tarnloft {

// The sections of a page, one beneath the other, of which only those near the viewport exist as
// views. It is as high as all would be: what doesn't exist stands at its estimated height, and what
// is seen stays where it is when that turns out otherwise. A view may go once it is far away, but
// not while it has the keyboard or a drag.
class SectionColumn : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tarnloft::SectionListModel* sections READ sections WRITE setSections NOTIFY
                 sectionsChanged REQUIRED)
  // Makes the views, which have the properties `section`, required, and `reachable`. A view is
  // given its width, and tells its height by its implicit one.
  Q_PROPERTY(QQmlComponent* view MEMBER component_ NOTIFY viewChanged REQUIRED)
  // The strip that is seen, in this item's coordinates.
  Q_PROPERTY(qreal viewTop MEMBER viewTop_ WRITE setViewTop NOTIFY viewportChanged)
  Q_PROPERTY(qreal viewHeight MEMBER viewHeight_ WRITE setViewHeight NOTIFY viewportChanged)
  // Of the section that has, or had last, the keyboard: the Tab key leads to those beside it. -1
  // for none, the number of sections for what stands behind all.
  Q_PROPERTY(int focusedRow MEMBER focusedRow_ WRITE setFocusedRow NOTIFY focusedRowChanged)

 public:
  explicit SectionColumn(QQuickItem* parent = nullptr);

  SectionListModel* sections() const { return sections_; }
  void setSections(SectionListModel* sections);
  void setViewTop(qreal top);
  void setViewHeight(qreal height);
  void setFocusedRow(int row);

  // Follows the sections now rather than before the next frame.
  Q_INVOKABLE void forceLayout();
  // Where that section stands, as far as is known; 0 for none.
  Q_INVOKABLE qreal topOf(int row);
  // The view of the first section that shows tiles; null if none does.
  Q_INVOKABLE QQuickItem* firstWithTiles();

  // Views that exist.
  int liveCount() const { return int(live_.size()); }

 signals:
  void sectionsChanged();
  void viewChanged();
  void viewportChanged();
  void focusedRowChanged();
  // What stands above the strip turned out to be higher by that much.
  void shifted(qreal by);

 protected:
  void componentComplete() override;
  void updatePolish() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  struct Row {
    SectionModel* section;
    QQuickItem* view = nullptr;
    bool isShown = true;
    double top = 0;
    double height = 0;
    std::optional<SharedList<Item>> measured = {};  // the items that are so high, if that is known
    double bottom() const { return top + height; }
  };

  void watch();
  void rearranged();
  void heightsChanged();
  void sizesChanged();
  void follow();
  void rebuildRows();
  bool takeHeights();
  double estimatedHeight(const SectionModel& section) const;
  void setOut();
  void correctHeights();
  size_t firstReaching(double top) const;
  bool isNear(const Row& row, double margin) const;
  bool isReachable(size_t row) const;
  bool populate(double margin);
  bool addAnother();
  void trim();
  QQuickItem* show(size_t row);
  QQuickItem* make(SectionModel& section, double top);
  void end(size_t row);
  void endOf(int first, int last);
  void focusMoved(const QQuickItem* view);
  void place();

  SectionListModel* sections_ = nullptr;
  QQmlComponent* component_ = nullptr;
  qreal viewTop_ = 0;
  qreal viewHeight_ = 0;
  int focusedRow_ = -1;
  double margin_ = 0;  // beyond the strip that is seen, in which views exist as well
  bool areRowsStale_ = true;
  bool areHeightsStale_ = true;
  bool isOrderStale_ = false;  // children may not stand in the order of their sections
  std::vector<Row> rows_;
  std::set<size_t> live_;  // rows with a view
};

}  // namespace tarnloft
