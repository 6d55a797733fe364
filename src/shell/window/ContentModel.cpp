#include "shell/window/ContentModel.h"

#include "assets/FontManager.h"
#include "model/ShownText.h"
#include "platform/DesktopWords.h"
#include "shell/help/AboutSheet.h"
#include "shell/help/ShortcutsSheet.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace tarnloft {

ContentModel::ContentModel(const WorkspaceServices& services, UpdaterViewModel* updater,
                           QObject* parent)
    : QObject(parent),
      services_(services),
      library_(services.library),
      commands_(library_, updater),
      edit_(*this),
      view_(library_.preferences()),
      sidebar_(services, sheets_),
      alerts_(library_, sheets_, updater),
      work_(library_.longWork()),
      selectedBrand_(library_.selection()),
      undoDocument_(library_.openDocument()) {
  library_.setHostUndoManager(&undo_);
  const LibraryStore* const library = &library_;
  connect(library, &LibraryStore::brandsChanged, this, &ContentModel::detailChanged);
  connect(library, &LibraryStore::openDocumentChanged, this, &ContentModel::detailChanged);
  connect(library, &LibraryStore::openDocumentChanged, this, &ContentModel::titleChanged);
  connect(library, &LibraryStore::brandChanged, this, &ContentModel::titleChanged);
  // Several documents may come and go in one turn; each page costs.
  connect(
      library, &LibraryStore::openDocumentChanged, this, [this] { renewPage(); },
      Qt::QueuedConnection);
  connect(library, &LibraryStore::openDocumentChanged, this, &ContentModel::followDocument);
  connect(library, &LibraryStore::plainChanged, this, [this] { renewPage(Renewal::always); });
  connect(library, &LibraryStore::plainChanged, &services_.thumbnails, &Thumbnails::retry);
  connect(library, &LibraryStore::isLoadingChanged, this, &ContentModel::detailChanged);
  connect(library, &LibraryStore::libraryProblemChanged, this, &ContentModel::detailChanged);
  connect(library, &LibraryStore::selectionChanged, this, &ContentModel::followSelection);
  connect(library, &LibraryStore::newBrandRequestedChanged, this, &ContentModel::answerRequest);
  connect(library, &LibraryStore::scrollToSectionChanged, this, &ContentModel::answerScrollRequest,
          Qt::QueuedConnection);
  connect(&toasts_, &ToastCenter::messageChanged, this, &ContentModel::toastChanged);
  library_.beginShowing();
  renewPage();
  answerRequest();
}

ContentModel::~ContentModel() { library_.setHostUndoManager(nullptr); }

ContentModel::Detail ContentModel::detail() const {
  if (library_.openDocument()) return Detail::Brand;
  if (library_.isLoading()) return Detail::Opening;
  const bool isEmpty = library_.brands().isEmpty();
  if (isEmpty && !library_.libraryProblem().isEmpty()) return Detail::Unavailable;
  if (library_.isOpening()) return Detail::Opening;
  return isEmpty ? Detail::Welcome : Detail::NoSelection;
}

QVariantList ContentModel::pages() const {
  return workspace_ ? QVariantList{QVariant::fromValue(workspace_.get())} : QVariantList();
}

QString ContentModel::title() const {
  QString program = QStringLiteral("Tarn Loft");
  const BrandDocument* const open = library_.openDocument();
  if (!open) return program;
  return shownText(open->brand().name, mostInTitle) + QStringLiteral(" — ") + program;
}

void ContentModel::askNewBrand() {
  if (newBrandSheet_) return;
  newBrandSheet_ = sheets_.show(std::make_unique<NameSheet>(
      NameSheet::Words{.title = QStringLiteral("New Brand"),
                       .prompt = QStringLiteral("Brand name"),
                       .confirmText = QStringLiteral("Create")},
      newBrandName_, [this](const QString& name) { library_.createBrand(name); }));
  connect(newBrandSheet_, &NameSheet::textChanged, this,
          [this] { newBrandName_ = newBrandSheet_->text(); });
}

void ContentModel::find() {
  if (workspace_) emit workspace_->searchRequested();
}

void ContentModel::showVersions() {
  if (workspace_) workspace_->showVersions();
}

void ContentModel::askNewSection() {
  if (workspace_) workspace_->askNewSection();
}

void ContentModel::showAbout() { sheets_.show(std::make_unique<AboutSheet>()); }

void ContentModel::showShortcuts(const QVariantList& ofMenus) {
  sheets_.show(std::make_unique<ShortcutsSheet>(ofMenus));
}

void ContentModel::answerRequest() {
  if (!library_.newBrandRequested()) return;
  library_.setNewBrandRequested(false);
  askNewBrand();
}

QString ContentModel::toast() const { return inDesktopWords(toasts_.text()); }

void ContentModel::answerScrollRequest() {
  const std::optional<QUuid> id = library_.scrollToSection();
  if (!id || !library_.openDocument()) return;
  const QList<Section>& sections = library_.openDocument()->brand().sections;
  const qsizetype index = indexOf(sections, *id);
  if (index >= 0) emit sectionRequested(int(index));
  library_.setScrollToSection(std::nullopt);
}

void ContentModel::renewPage(Renewal renewal) {
  BrandDocument* const document = library_.openDocument();
  if (!workspace_ && !document) return;
  // A brand whose package has moved keeps its page, with what is scrolled to and selected there.
  const bool isShown = workspace_ && document && workspace_->document() == document;
  if (isShown && renewal == Renewal::ofAnother) return;
  auto old = std::exchange(workspace_, document ? makeWorkspace(*document) : nullptr);
  emit workspaceChanged();
  // The old page goes in turns of its own, its sections behind it, and reads the old one till then.
  if (!old) return;
  old->setParent(this);  // which takes it along if no turn comes any more
  QTimer::singleShot(0, old.release(), &QObject::deleteLater);
}

void ContentModel::followFirstFrame() {
  isFrameShown_ = true;
  if (const BrandDocument* const open = library_.openDocument()) registerFonts(*open);
}

void ContentModel::registerFonts(const BrandDocument& document) {
  if (library_.isPlain()) return;
  services_.imports.workers.start(
      [brand = document.brand(), package = document.files(), &fonts = services_.imports.fonts] {
        FontManager::registerAll(brand, package, fonts);
      });
}

std::unique_ptr<BrandWorkspace> ContentModel::makeWorkspace(BrandDocument& document) {
  if (isFrameShown_) registerFonts(document);
  document.maybeAutoSnapshot();
  return std::make_unique<BrandWorkspace>(
      document, WindowParts{selection_, toasts_, sheets_, &undo_}, services_);
}

// Steps of a document that has gone would do nothing.
void ContentModel::followDocument() {
  if (std::exchange(undoDocument_, library_.openDocument()) != library_.openDocument()) {
    undo_.clear();
  }
}

// A brand whose package has moved is the same one.
void ContentModel::followSelection() {
  if (std::exchange(selectedBrand_, library_.selection()) == library_.selection()) return;
  const BrandDocument* const open = library_.openDocument();
  const bool isSame = open && workspace_ && workspace_->document() == open &&
                      open->packageURL() == library_.selection();
  if (!isSame) selection_.clear();
}

}  // namespace tarnloft
