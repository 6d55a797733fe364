#pragma once

#include "library/LibraryStore.h"
#include "pictures/EmblemLook.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// The hits of a query in all brands, brand by brand, as the results view shows them. They are
// looked for away from the main thread; those of the query before stand until then. Main thread.
class SearchResults : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a search")
  Q_PROPERTY(int count READ count NOTIFY changed)
  // What the hits are of; empty before the first have come.
  Q_PROPERTY(QString query READ query NOTIFY changed)

 public:
  enum Role {
    TitleRole = Qt::UserRole,
    DetailRole,  // "Color · in Palette"
    SymbolRole,
    BrandRole  // the package, which the rows of a brand share
  };

  // Outlives it.
  explicit SearchResults(LibraryStore& library);

  int count() const { return int(hits_.size()); }
  const QString& query() const { return query_; }
  // Looks for it; empty ends with no hits at once.
  void search(const QString& query);
  // The hits of that query, brand by brand.
  void show(const QString& query, SearchHits hits);
  SearchHit hit(int row) const { return hits_.at(row); }

  // Of a brand with hits.
  Q_INVOKABLE QString brandName(const QString& package) const;
  Q_INVOKABLE tarnloft::EmblemLook brandEmblem(const QString& package) const;
  Q_INVOKABLE int hitCount(const QString& package) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 signals:
  void changed();

 private:
  const SearchHits::Group* group(const QString& package) const;

  LibraryStore& library_;
  QString wanted_;
  QString query_;
  SearchHits hits_;
};

}  // namespace tarnloft
