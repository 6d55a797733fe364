#include "shell/ContentModel.h"

#include "assets/FontManager.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace tarnloft {

ContentModel::ContentModel(LibraryStore& library, const LibraryServices& services,
                           const WorkspaceServices& workspaceServices, QObject* parent)
    : QObject(parent),
      library_(library),
      workspaceServices_(workspaceServices),
      commands_(library, services),
      sidebar_(library, services.document.files, services.viewer),
      selectedBrand_(library.selection()) {
  library.setHostUndoManager(&undo_);
  connect(&library, &LibraryStore::openDocumentChanged, this, &ContentModel::openWorkspace);
  connect(&library, &LibraryStore::scrollToSectionChanged, this,
          &ContentModel::showRequestedSection);
  connect(&library, &LibraryStore::brandsChanged, this, &ContentModel::detailChanged);
  connect(&library, &LibraryStore::openDocumentChanged, this, &ContentModel::detailChanged);
  connect(&library, &LibraryStore::openDocumentChanged, this, &ContentModel::titleChanged);
  connect(&library, &LibraryStore::brandChanged, this, &ContentModel::titleChanged);
  // Steps of a document that has gone would do nothing.
  connect(&library, &LibraryStore::openDocumentChanged, &undo_, &StackUndoManager::clear);
  connect(&library, &LibraryStore::selectionChanged, this, &ContentModel::followSelection);
  connect(&library, &LibraryStore::newBrandRequestedChanged, this, &ContentModel::answerRequest);
  answerRequest();
  openWorkspace();
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

// Another brand gets a page of its own; the old one lives until views have let go of it.
void ContentModel::openWorkspace() {
  BrandDocument* const document = library_.openDocument();
  if (BrandWorkspace* const old = workspace_.release()) old->deleteLater();
  if (document) {
    workspace_ = std::make_unique<BrandWorkspace>(*document, selection_, toasts_, &undo_,
                                                  workspaceServices_);
    // Behind the page's first frame, which doesn't show what it does.
    QTimer::singleShot(0, workspace_.get(), [this] { brandShown(); });
  }
  emit workspaceChanged();
}

void ContentModel::brandShown() {
  BrandDocument* const document = workspace_->document();
  if (!document) return;
  FontManager::registerAll(*document, workspaceServices_.imports.fonts);
  document->maybeAutoSnapshot();
}

void ContentModel::showRequestedSection() {
  const auto section = library_.scrollToSection();
  if (!section || !workspace_) return;
  const auto& sections = library_.openDocument()->brand().sections;
  const auto found = std::find_if(sections.cbegin(), sections.cend(),
                                  [&](const Section& each) { return each.id == *section; });
  library_.setScrollToSection(std::nullopt);
  if (found != sections.cend()) emit sectionRequested(int(found - sections.cbegin()));
}

void ContentModel::followSelection() {
  if (std::exchange(selectedBrand_, library_.selection()) != library_.selection()) {
    selection_.clear();
  }
}

}  // namespace tarnloft
