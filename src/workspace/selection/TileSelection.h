#pragma once

#include <QList>
#include <QObject>
#include <QSet>
#include <QUuid>

#include <optional>

namespace tarnloft {

// The tiles that a user has marked in a window, all of one section: touching a tile of another
// replaces the selection. Knows ids alone; one whose item has gone matches nothing. When nothing is
// selected, there is no section and no anchor. Observers see each operation when it is whole. Main
// thread.
class TileSelection : public QObject {
  Q_OBJECT
  Q_PROPERTY(std::optional<QUuid> sectionID READ sectionID NOTIFY sectionIDChanged)
  Q_PROPERTY(QSet<QUuid> ids READ ids NOTIFY idsChanged)
  Q_PROPERTY(int count READ count NOTIFY idsChanged)

 public:
  using QObject::QObject;

  const std::optional<QUuid>& sectionID() const { return sectionID_; }
  const QSet<QUuid>& ids() const { return ids_; }
  int count() const { return int(ids_.size()); }
  // The item from which a range extends.
  const std::optional<QUuid>& anchor() const { return anchor_; }

  Q_INVOKABLE bool contains(const QUuid& id, const QUuid& section) const;

  // Adds the item or takes it away; either way it becomes the anchor.
  Q_INVOKABLE void toggle(const QUuid& id, const QUuid& section);
  // Adds what stands from the anchor to the item, both included, in either direction. Without an
  // anchor in that section the item alone is selected and becomes it. `order` is the section's.
  Q_INVOKABLE void extend(const QUuid& id, const QUuid& section, const QList<QUuid>& order);
  // Selects those, the last one being the anchor; an empty list changes nothing.
  Q_INVOKABLE void selectAll(const QList<QUuid>& items, const QUuid& section);
  Q_INVOKABLE void clear();

 signals:
  void sectionIDChanged();
  void idsChanged();

 private:
  void assign(const std::optional<QUuid>& section, const QSet<QUuid>& ids,
              const std::optional<QUuid>& anchor);

  std::optional<QUuid> sectionID_;
  QSet<QUuid> ids_;
  std::optional<QUuid> anchor_;
};

}  // namespace tarnloft
