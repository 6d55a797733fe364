#include "shell/ContentModel.h"

#include "assets/FontManager.h"
#include "platform/DesktopWords.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace tarnloft {
namespace {

constexpr std::chrono::milliseconds snapshotDelay{500};

}  // namespace

ContentModel::ContentModel(const LibraryServices& libraryServices,
                           const WorkspaceServices& services, QObject* parent)
    : QObject(parent),
      services_(services),
      library_(services.library),
      commands_(library_, libraryServices),
      sidebar_(library_, libraryServices),
      selectedBrand_(library_.selection()) {
  library_.setHostUndoManager(&undo_);
  const LibraryStore* const library = &library_;
  connect(library, &LibraryStore::brandsChanged, this, &ContentModel::detailChanged);
  connect(library, &LibraryStore::openDocumentChanged, this, &ContentModel::detailChanged);
  connect(library, &LibraryStore::openDocumentChanged, this, &ContentModel::titleChanged);
  connect(library, &LibraryStore::brandChanged, this, &ContentModel::titleChanged);
  // Several documents may come and go in one turn; each page costs.
  connect(library, &LibraryStore::openDocumentChanged, this, &ContentModel::renewWorkspace,
          Qt::QueuedConnection);
  // Steps of a document that has gone would do nothing.
  connect(library, &LibraryStore::openDocumentChanged, &undo_, &StackUndoManager::clear);
  connect(library, &LibraryStore::selectionChanged, this, &ContentModel::followSelection);
  connect(library, &LibraryStore::newBrandRequestedChanged, this, &ContentModel::answerRequest);
  connect(library, &LibraryStore::scrollToSectionChanged, this, &ContentModel::answerScrollRequest,
          Qt::QueuedConnection);
  connect(&toasts_, &ToastCenter::messageChanged, this, &ContentModel::toastChanged);
  renewWorkspace();
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

QString ContentModel::toast() const { return inDesktopWords(toasts_.text()); }

void ContentModel::answerScrollRequest() {
  const std::optional<QUuid> id = library_.scrollToSection();
  if (!id || !library_.openDocument()) return;
  const QList<Section>& sections = library_.openDocument()->brand().sections;
  const auto found = std::ranges::find(sections, *id, &Section::id);
  if (found != sections.cend()) emit sectionRequested(int(found - sections.cbegin()));
  library_.setScrollToSection(std::nullopt);
}

void ContentModel::renewWorkspace() {
  BrandDocument* const document = library_.openDocument();
  if (!workspace_ && !document) return;
  if (workspace_ && document && workspace_->document() == document) return;
  auto old = std::exchange(workspace_, document ? makeWorkspace(*document) : nullptr);
  emit workspaceChanged();
  // The old page goes in turns of its own, its sections behind it, and reads the old one till then.
  if (!old) return;
  old->setParent(this);  // which takes it along if no turn comes any more
  QTimer::singleShot(0, old.release(), &QObject::deleteLater);
}

std::unique_ptr<BrandWorkspace> ContentModel::makeWorkspace(BrandDocument& document) {
  FontManager::registerAll(document, services_.imports.fonts);
  // Reads the versions that there are, for which no page should wait.
  QTimer::singleShot(snapshotDelay, &document, [&document] { document.maybeAutoSnapshot(); });
  return std::make_unique<BrandWorkspace>(document, selection_, toasts_, &undo_, services_);
}

void ContentModel::followSelection() {
  if (std::exchange(selectedBrand_, library_.selection()) != library_.selection()) {
    selection_.clear();
  }
}

}  // namespace tarnloft
