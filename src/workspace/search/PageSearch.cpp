#include "workspace/search/PageSearch.h"

#include <algorithm>

namespace tarnloft {

// Newlines count as something to look for, until the search itself drops them.
bool PageSearch::isGlobal() const {
  return scope_ == Scope::AllBrands && std::any_of(text_.begin(), text_.end(), [](QChar c) {
           return !c.isSpace() || c == QLatin1Char('\n') || c == QLatin1Char('\r');
         });
}

void PageSearch::setText(const QString& text) { set(text, scope_); }

void PageSearch::setScope(Scope scope) { set(text_, scope); }

void PageSearch::set(const QString& text, Scope scope) {
  if (text_ == text && scope_ == scope) return;
  text_ = text;
  scope_ = scope;
  results_.search(isGlobal() ? text : QString());
  emit changed();
}

void PageSearch::pick(int row) {
  if (row < 0 || row >= results_.count()) return;
  const SearchHit hit = results_.hit(row);
  set({}, Scope::ThisBrand);
  library_.reveal(hit);
}

}  // namespace tarnloft
