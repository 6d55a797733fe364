#include "shell/ContentModel.h"

#include <utility>

namespace tarnloft {

ContentModel::ContentModel(LibraryStore& library, const LibraryServices& services, QObject* parent)
    : QObject(parent),
      library_(library),
      commands_(library, services),
      sidebar_(library, services.viewer),
      selectedBrand_(library.selection()) {
  library.setHostUndoManager(&undo_);
  connect(&library, &LibraryStore::brandsChanged, this, &ContentModel::detailChanged);
  connect(&library, &LibraryStore::openDocumentChanged, this, &ContentModel::detailChanged);
  connect(&library, &LibraryStore::openDocumentChanged, this, &ContentModel::titleChanged);
  connect(&library, &LibraryStore::brandChanged, this, &ContentModel::titleChanged);
  // Steps of a document that has gone would do nothing.
  connect(&library, &LibraryStore::openDocumentChanged, &undo_, &StackUndoManager::clear);
  connect(&library, &LibraryStore::selectionChanged, this, &ContentModel::followSelection);
  connect(&library, &LibraryStore::newBrandRequestedChanged, this, &ContentModel::answerRequest);
  answerRequest();
}

ContentModel::~ContentModel() { library_.setHostUndoManager(nullptr); }

ContentModel::Detail ContentModel::detail() const {
  if (library_.openDocument()) return Detail::brand;
  return library_.brands().isEmpty() ? Detail::welcome : Detail::noSelection;
}

QString ContentModel::title() const {
  const QString program = QStringLiteral("Tarn Loft");
  const BrandDocument* const open = library_.openDocument();
  return open ? open->brand().name + QStringLiteral(" — ") + program : program;
}

void ContentModel::setShowNewBrand(bool show) {
  if (std::exchange(showNewBrand_, show) != show) emit showNewBrandChanged();
}

void ContentModel::setNewBrandName(const QString& name) {
  if (std::exchange(newBrandName_, name) != name) emit newBrandNameChanged();
}

void ContentModel::answerRequest() {
  if (!library_.newBrandRequested()) return;
  setShowNewBrand(true);
  library_.setNewBrandRequested(false);
}

void ContentModel::followSelection() {
  if (std::exchange(selectedBrand_, library_.selection()) != library_.selection()) {
    selection_.clear();
  }
}

}  // namespace tarnloft
