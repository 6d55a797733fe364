#include "document/BrandMerge.h"

#include "document/ListMerge.h"
#include "document/RecordMerge.h"

namespace tarnloft {
namespace {

// Null if there is none.
const Section* sectionOf(const Brand& brand, const QUuid& id) {
  const auto found = std::find_if(brand.sections.begin(), brand.sections.end(),
                                  [&](const Section& section) { return section.id == id; });
  return found == brand.sections.end() ? nullptr : &*found;
}

SharedList<Item> itemsOf(const Brand& brand, const QUuid& id) {
  const Section* section = sectionOf(brand, id);
  return section ? section->items : SharedList<Item>();
}

// One of the places where an item's id stands.
struct Occurrence {
  const Item* item;
  QUuid section;
};
using Occurrences = QHash<QUuid, QList<Occurrence>>;

Occurrences occurrences(const Brand& brand, const QSet<QUuid>& ids) {
  Occurrences found;
  for (const Section& section : brand.sections) {
    for (const Item& item : section.items) {
      if (ids.contains(item.id)) found[item.id] << Occurrence{&item, section.id};
    }
  }
  return found;
}

bool takeEqual(QList<Occurrence>& list, const Item& item) {
  const auto found = std::find_if(list.begin(), list.end(),
                                  [&](const Occurrence& one) { return *one.item == item; });
  if (found == list.end()) return false;
  list.erase(found);
  return true;
}

// Decides what becomes of each item that the step touched. Refers to the three brands.
class ItemMerge {
 public:
  ItemMerge(const Brand& from, const Brand& to, const Brand& present)
      : from_(from), to_(to), present_(present) {
    for (const Section& section : from.sections) compare(section.id);
    for (const Section& section : to.sections) {
      if (!sectionOf(from, section.id)) compare(section.id);
    }
    const auto before = occurrences(from, touched_), after = occurrences(to, touched_),
               now = occurrences(present, touched_);
    for (const QUuid& id : std::as_const(touched_)) {
      decide(before.value(id), after.value(id), now.value(id));
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

  void decide(QList<Occurrence> before, const QList<Occurrence>& after, QList<Occurrence> now) {
    if (before.size() > 1 || after.size() > 1 || now.size() > 1) {
      for (const Occurrence& one : after) {
        const bool stayed = takeEqual(before, *one.item), isThere = takeEqual(now, *one.item);
        if (!stayed && !isThere) arrive(one, *one.item);
      }
    } else if (before.isEmpty()) {
      if (now.isEmpty()) arrive(after.first(), *after.first().item);
    } else if (!now.isEmpty()) {
      after.isEmpty() ? leave(now.first()) : change(before.first(), after.first(), now.first());
    }
  }

  void change(const Occurrence& before, const Occurrence& after, const Occurrence& now) {
    const Item value = merged(*before.item, *after.item, *now.item);
    const bool moves = before.section != after.section || moved_.contains(value.id);
    if (moves && now.section == before.section) {  // else moved elsewhere since
      leave(now);
      arrive(after, value);
    } else if (value != *now.item) {
      changes_[now.section].changed.insert(now.item, value);
    }
  }

  void leave(const Occurrence& now) { changes_[now.section].leaving.insert(now.item); }

  void arrive(const Occurrence& there, const Item& value) {
    changes_[there.section].arriving.insert(there.item, value);
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
    const Section* const before = sectionOf(from, target.id);
    const Section* const now = sectionOf(present, target.id);
    if (now && before) {
      Section value = *now;
      mergeFields(*before, target, value);
      if (moved.contains(target.id)) {
        change.leaving.insert(now);
        change.arriving.insert(&target, value);
      } else {
        change.changed.insert(now, value);
      }
    } else if (!now && (!before || receivers.contains(target.id))) {
      change.arriving.insert(&target, withoutItems(target));
    }
  }
  return rearranged(present.sections, to.sections, change);
}

// True if the step takes the section away and nobody put anything into it since.
bool goes(const Section& section, const Brand& from, const Brand& to) {
  const Section* const before = sectionOf(from, section.id);
  return before && !sectionOf(to, section.id) && section == withoutItems(*before);
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

// Sections of one id, which a foreign brand may hold, get ids of their own for as long as it takes.
class DistinctSections {
 public:
  Brand of(Brand brand) {
    QHash<QUuid, int> counts;
    for (qsizetype i = 0; i < brand.sections.size(); ++i) {
      const QUuid id = brand.sections.at(i).id;
      if (const int count = counts[id]++) {
        brand.sections[i].id = QUuid::createUuidV5(id, QByteArray::number(count));
        originals_.insert(brand.sections.at(i).id, id);
      }
    }
    return brand;
  }

  Brand original(Brand brand) const {
    if (originals_.isEmpty()) return brand;
    for (Section& section : brand.sections) section.id = originals_.value(section.id, section.id);
    return brand;
  }

 private:
  QHash<QUuid, QUuid> originals_;
};

bool isSameButForItsSave(Brand brand, const Brand& other) {
  brand.updatedAt = other.updatedAt;
  return brand == other;
}

}  // namespace

Brand reapplied(const Brand& from, const Brand& to, const Brand& present) {
  if (isSameButForItsSave(from, present)) return to;
  DistinctSections sections;
  const Brand before = sections.of(from), after = sections.of(to), now = sections.of(present);
  return sections.original(difference(before, after, now));
}

}  // namespace tarnloft
