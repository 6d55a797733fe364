#pragma once

#include "workspace/search/SearchResults.h"

namespace tarnloft {

// The search of a brand's page: its text, and whether that filters the page or looks through all
// brands. Main thread.
class PageSearch : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a workspace")
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
  Q_PROPERTY(Scope scope READ scope WRITE setScope NOTIFY changed)
  // The results of all brands lie over the page.
  Q_PROPERTY(bool global READ isGlobal NOTIFY changed)
  Q_PROPERTY(tarnloft::SearchResults* results READ results CONSTANT)

 public:
  enum class Scope { ThisBrand, AllBrands };
  Q_ENUM(Scope)

  // Outlives it.
  explicit PageSearch(LibraryStore& library) : library_(library), results_(library) {}

  const QString& text() const { return text_; }
  void setText(const QString& text);
  Scope scope() const { return scope_; }
  void setScope(Scope scope);
  bool isGlobal() const;
  // What the page's own tiles are filtered by.
  QString filter() const { return scope_ == Scope::ThisBrand ? text_ : QString(); }
  SearchResults* results() { return &results_; }

  // Ends the search and shows the hit in its brand.
  Q_INVOKABLE void pick(int row);

 signals:
  void changed();

 private:
  void set(const QString& text, Scope scope);

  LibraryStore& library_;
  QString text_;
  Scope scope_ = Scope::ThisBrand;
  SearchResults results_;
};

}  // namespace tarnloft
