#include "controls/sheets/ChoiceSheet.h"

#include <numeric>
#include <utility>

namespace tarnloft {

ChoiceSheet::ChoiceSheet(const Words& words, const QStringList& names, Chosen chosen)
    : words_(words), all_(names), chosen_(std::move(chosen)), shown_(names), places_(names.size()) {
  std::iota(places_.begin(), places_.end(), 0);
}

void ChoiceSheet::setFilter(const QString& filter) {
  if (std::exchange(filter_, filter) == filter) return;
  const QString wanted = filter.trimmed();
  shown_.clear();
  places_.clear();
  for (qsizetype place = 0; place < all_.size(); ++place) {
    if (!all_.at(place).contains(wanted, Qt::CaseInsensitive)) continue;
    shown_ << all_.at(place);
    places_ << place;
  }
  emit filterChanged();
}

void ChoiceSheet::choose(int row) {
  if (row < 0 || row >= places_.size()) return;
  emit finished();  // which ends it in a later turn at the earliest
  chosen_(places_.at(row));
}

}  // namespace tarnloft
