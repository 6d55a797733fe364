#include "document/BrandMerge.h"

#include "document/ListMerge.h"
#include "document/RecordMerge.h"

namespace tarnloft {
namespace {

SharedList<Item> itemsOf(const Brand& brand, const QUuid& id) {
  const Section* section = find(brand.sections, id);
  return section ? section->items : SharedList<Item>();
}

// Where an item stands.
struct ItemPlace {
  const Item* item;
  QUuid section;
};
using ItemPlaces = QHash<QUuid, ItemPlace>;

ItemPlaces placesOf(const Brand& brand, const QSet<QUuid>& ids) {
  ItemPlaces found;
  for (const Section& section : brand.sections) {
    for (const Item& item : section.items) {
      if (ids.contains(item.id)) found.insert(item.id, {&item, section.id});
    }
  }
  return found;
}

// Decides what becomes of each item that the step touched. Refers to the three brands.
class ItemMerge {
 public:
  ItemMerge(const Brand& from, const Brand& to, const Brand& present)
      : from_(from), to_(to), present_(present) {
    for (const Section& section : from.sections) compare(section.id);
    for (const Section& section : to.sections) {
      if (!find(from.sections, section.id)) compare(section.id);
    }
    const auto before = placesOf(from, touched_), after = placesOf(to, touched_),
               now = placesOf(present, touched_);
    for (const QUuid& id : std::as_const(touched_)) {
      const auto placeIn = [&](const ItemPlaces& places) {
        const auto found = places.constFind(id);
        return found == places.cend() ? nullptr : &*found;
      };
      decide(placeIn(before), placeIn(after), placeIn(now));
    }
  }

  // Sections that items come into.
  const QSet<QUuid>& receivers() const { return receivers_; }

  SharedList<Item> items(const QUuid& section) const {
    return rearranged(itemsOf(present_, section), itemsOf(to_, section), changes_.value(section));
  }

 private:
  void compare(const QUuid& section) {
    const SharedList<Item> before = itemsOf(from_, section);
    const ListStep step = listStep(before, itemsOf(to_, section));
    touched_ += step.touched;
    if (step.moved.isEmpty()) return;
    moved_ += step.moved - listStep(before, itemsOf(present_, section)).moved;
  }

  // Null for a brand that doesn't hold the item.
  void decide(const ItemPlace* before, const ItemPlace* after, const ItemPlace* now) {
    if (!before) {
      if (!now) arrive(*after, *after->item);
    } else if (now) {
      after ? change(*before, *after, *now) : leave(*now);
    }
  }

  void change(const ItemPlace& before, const ItemPlace& after, const ItemPlace& now) {
    const Item value = merged(*before.item, *after.item, *now.item);
    const bool moves = before.section != after.section || moved_.contains(value.id);
    if (moves && now.section == before.section) {  // else moved elsewhere since
      leave(now);
      arrive(after, value);
    } else if (value != *now.item) {
      changes_[now.section].changed.insert(value.id, value);
    }
  }

  void leave(const ItemPlace& now) { changes_[now.section].leaving.insert(now.item->id); }

  void arrive(const ItemPlace& there, const Item& value) {
    changes_[there.section].arriving.insert(value.id, value);
    receivers_.insert(there.section);
  }

  const Brand& from_;
  const Brand& to_;
  const Brand& present_;
  QSet<QUuid> touched_;
  QSet<QUuid> moved_;  // within their section by the step, and not again since
  QSet<QUuid> receivers_;
  QHash<QUuid, Rearrangement<Item>> changes_;  // by section
};

Section withoutItems(Section section) {
  section.items.clear();
  return section;
}

// The sections that are there at the end, still with their present items, and those that may go.
QList<Section> mergedSections(const Brand& from, const Brand& to, const Brand& present,
                              const QSet<QUuid>& receivers) {
  QSet<QUuid> moved = listStep(from.sections, to.sections).moved;
  if (!moved.isEmpty()) moved -= listStep(from.sections, present.sections).moved;
  Rearrangement<Section> change;
  for (const Section& target : to.sections) {
    const Section* const before = find(from.sections, target.id);
    const Section* const now = find(present.sections, target.id);
    if (now && before) {
      Section value = *now;
      mergeFields(*before, target, value);
      if (moved.contains(target.id)) {
        change.leaving.insert(value.id);
        change.arriving.insert(value.id, value);
      } else {
        change.changed.insert(value.id, value);
      }
    } else if (!now && (!before || receivers.contains(target.id))) {
      change.arriving.insert(target.id, withoutItems(target));
    }
  }
  return rearranged(present.sections, to.sections, change);
}

// True if the step takes the section away and nobody put anything into it since.
bool goes(const Section& section, const Brand& from, const Brand& to) {
  const Section* const before = find(from.sections, section.id);
  return before && !find(to.sections, section.id) && section == withoutItems(*before);
}

Brand difference(const Brand& from, const Brand& to, const Brand& present) {
  const ItemMerge items(from, to, present);
  Brand result = present;
  mergeFields(from, to, result);
  result.sections = mergedSections(from, to, present, items.receivers());
  for (Section& section : result.sections) section.items = items.items(section.id);
  result.sections.removeIf([&](const Section& section) { return goes(section, from, to); });
  return result;
}

bool isSameButForItsSave(Brand brand, const Brand& other) {
  brand.updatedAt = other.updatedAt;
  return brand == other;
}

}  // namespace

Brand reapplied(const Brand& from, const Brand& to, const Brand& present) {
  if (isSameButForItsSave(from, present)) return to;
  return difference(from, to, present);
}

}  // namespace tarnloft
