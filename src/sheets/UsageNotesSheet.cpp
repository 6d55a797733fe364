#include "sheets/UsageNotesSheet.h"

#include "model/ShownText.h"

#include <utility>

namespace tarnloft {

UsageNotesSheet::UsageNotesSheet(std::unique_ptr<ItemBinding> item) : item_(std::move(item)) {
  connect(item_.get(), &ItemBinding::changed, this, &UsageNotesSheet::follow);
  connect(item_.get(), &ItemBinding::gone, this, &SheetModel::finished);
  follow();
}

void UsageNotesSheet::follow() {
  notes_.setNotes(item_->item().usageNotes());
  const QString title = shownText(item_->item().displayName());
  if (std::exchange(title_, title) != title) emit titleChanged();
}

void UsageNotesSheet::add(Kind kind) {
  store([&](QList<UsageNote>& notes) {
    notes << UsageNote{QUuid::createUuid(), UsageKind(kind), QString()};
  });
}

void UsageNotesSheet::setKind(int row, Kind kind) {
  edit(row, [&](auto& notes, qsizetype place) { notes[place].kind = UsageKind(kind); });
}

void UsageNotesSheet::setText(int row, const QString& text) {
  edit(row, [&](auto& notes, qsizetype place) { notes[place].text = text; });
}

void UsageNotesSheet::remove(int row) {
  edit(row, [](auto& notes, qsizetype place) { notes.removeAt(place); });
}

// What the row shows may stand elsewhere in the document by now.
void UsageNotesSheet::edit(
    int row, const std::function<void(QList<UsageNote>& notes, qsizetype place)>& change) {
  if (row < 0 || row >= notes_.rowCount()) return;
  store([&, id = notes_.notes().at(row).id](QList<UsageNote>& notes) {
    const qsizetype place = indexOf(notes, id);
    if (place >= 0) change(notes, place);
  });
}

void UsageNotesSheet::store(const std::function<void(QList<UsageNote>& notes)>& change) {
  item_->update([&](Item& item) {
    QList<UsageNote> notes = item.usageNotes();
    change(notes);
    item.setUsageNotes(notes);
  });
}

}  // namespace tarnloft
