#pragma once

#include "document/BrandDocument.h"
#include "document/BrandPlace.h"
#include "library/BrandSummary.h"
#include "library/GlobalSearch.h"
#include "library/LibraryListing.h"
#include "library/LibraryPreferences.h"
#include "library/LibraryServices.h"
#include "library/LongWork.h"
#include "library/OpeningWatch.h"
#include "library/PackagePlaces.h"
#include "library/UnsavedDocuments.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace tarnloft {

// The one long-lived model of the program: the library folder, the listing of its packages, the
// selection and the one open document, and the app-wide preferences. `brands` changes only through
// `scan`. The disk is worked on elsewhere: on a quick one all is done when a call returns, on a
// slow one it follows, and the signals tell. Main thread only.
class LibraryStore : public QObject {
  Q_OBJECT

 public:
  // Reads the preferences, makes the folder, scans, selects the first row and loads it.
  explicit LibraryStore(const LibraryServices& services);
  ~LibraryStore() override;

  // --- The folder and its listing

  // The chosen folder, else "Tarn Loft/Library" in the user's application data.
  static QString defaultLibraryURL(const LibraryServices& services);
  const QString& libraryURL() const { return libraryURL_; }
  // Changes to another folder, which becomes the chosen one, and selects its first row. One that
  // can't be a library changes nothing, and `libraryRefused` tells. Work of the old one that can't
  // be saved is kept.
  void setLibraryURL(const QString& path);

  // In display order.
  const QList<BrandSummary>& brands() const { return brands_; }
  // True until the folder was read for the first time.
  bool isOpening() const { return isOpening_; }
  // Why `brands` may not be what is in the folder: it can't be read, isn't there or doesn't answer.
  // Empty if it is. Looked for again by itself.
  QString libraryProblem() const;
  // Reads the folder again. Leaves the selection and the open document alone.
  void scan();
  // Puts the row in front of another, or at the end.
  void moveBrand(const QUuid& id, const std::optional<QUuid>& before);

  // --- Selection. Nothing is selected; or a package is, with its document open; or a package that
  // can't be read is, with none.

  const std::optional<QString>& selection() const { return selection_; }
  // Selects and loads. Selecting the open package again does nothing.
  void select(const std::optional<QString>& packageURL);
  // Null if none is open. Owned by the store; it goes with the next selection, but not before its
  // work is on disk.
  BrandDocument* openDocument() const { return openDocument_.get(); }
  // Looks whether its package still stands where it was seen, and follows it if another program
  // has renamed it. To be called before its files are read for something new.
  void followOpenPackage();
  // True while the selected package is being read.
  bool isLoading() const { return selection_ && loading_.contains(*selection_); }

  // --- Brands that ended the program while they were opened. They aren't opened by themselves, and
  // are shown without their fonts and pictures until the user wants these.

  // The one that the last end left, until it is answered; null for none.
  const BrandSummary* endedOpening() const;
  enum class EndedOpening { leave, open };
  void answerEndedOpening(EndedOpening answer);
  // The open brand is one of them.
  bool isPlain() const;
  void showWholly();
  // The open brand's page is about to be shown.
  void beginShowing();
  // The program ends as it should: what is being opened isn't to blame.
  void endShowing(std::chrono::milliseconds patience);

  // --- Work that isn't on disk

  // Saves what isn't saved, of all documents, waiting at most so long. False if something isn't.
  bool flush(std::chrono::milliseconds patience);
  // Tries again what couldn't be saved.
  void retrySaves();
  // The names of brands whose changes aren't on disk.
  QStringList unsavedBrands() const;
  // Why the package's changes couldn't be saved; empty if they could, or there are none.
  QString saveProblem(const QString& packageURL) const;
  // Asks for a folder and puts a copy of the open brand there, as it is in memory.
  void saveCopy();

  // --- What failed of what the user asked for, the oldest first, until it is dismissed

  struct Notice {
    QString title;
    QString message;
  };
  const QList<Notice>& notices() const { return notices_; }
  void tell(const QString& title, const QString& message);
  void dismissNotice();

  // Appends items to a section of the brand whose package stood there when their making began,
  // wherever it stands by now and whether or not it is open. A brand that is gone loses them.
  void addItems(const BrandPlace& brand, const QUuid& section, const QList<Item>& items);

  // --- Brands that come and go. Each does its work on the disk, scans and moves the selection.

  // Makes a brand, selects it and gives its document; null if that is still to come, or if its
  // folder can't be made, which the system log tells too.
  BrandDocument* createBrand(const QString& name);
  // Renames the selected brand and moves its package to a name made from it, which gets a suffix if
  // it is taken, by the package itself too. While its changes can't be saved it stays where it is.
  void renameSelectedBrand(const QString& name);
  // Copies the package as "<name> Copy" with an id of its own and selects the copy.
  void duplicateBrand(const BrandSummary& brand);
  // Moves the package to the trash. The selection moves on to the first row if it was selected.
  // Where there is no trash to be had, the brand stays, and `trashRefused` tells.
  void deleteBrand(const BrandSummary& brand);
  // The same, for ever.
  void deleteBrandImmediately(const BrandSummary& brand);
  // Selects the brand, asks where to and publishes its page.
  void exportBrandPage(const BrandSummary& brand);
  void exportOpenBrandPage();
  // Asks where to, writes the package as a zip and shows it.
  void exportBrand(const BrandSummary& brand);
  void exportSelectedBrand();
  // Asks for an archive or a package and adds it as a brand with an id of its own, named after its
  // package; selects it. An archive without a whole package in it adds nothing.
  void importBrand();
  // The same for a file that was opened from elsewhere; a package of the library's is selected.
  void openFile(const QString& path);

  // Selects the brand, and calls `then` once its document is open or couldn't be opened.
  void whenLoaded(const QString& packageURL, std::function<void()> then);

  // --- Preferences

  LibraryPreferences& preferences() { return preferences_; }
  // Exports, imports and copies under way.
  LongWork& longWork() { return longWork_; }

  // Bounds of a tile's width in the grid, in points.
  double gridMinWidth() const;
  double gridMaxWidth() const;

  // The accent in force for the open brand.
  QString effectiveAccentHex(ColorUtil::Appearance appearance) const;
  void applyAppearance();

  // --- Requests from a menu to a view, which clears them

  bool newBrandRequested() const { return newBrandRequested_; }
  void setNewBrandRequested(bool requested);
  const std::optional<QUuid>& scrollToSection() const { return scrollToSection_; }
  void setScrollToSection(const std::optional<QUuid>& section);

  // --- Search

  // The hits of all brands in display order, edits of the open one that aren't saved included.
  QList<SearchHit> searchAllBrands(const QString& query);
  // The same away from the main thread. Never called if another query follows before it is done.
  void searchAllBrands(const QString& query, std::function<void(SearchHits)> done);
  // Selects the hit's brand and, on the next turn of the event loop, asks for its section.
  void reveal(const SearchHit& hit);

  // --- Colours from the screen

  // Lets the user pick a colour of the screen; not called if nothing is picked.
  void sampleColor(std::function<void(const QString& hex)> picked);
  // The same, and adds it to the open brand, undoably; beeps without one.
  void pickColorFromScreen();
  const std::optional<QUuid>& activeColorSectionID() const { return activeColorSectionID_; }
  void setActiveColorSectionID(const std::optional<QUuid>& section);
  // The window's; borrowed, null for none.
  void setHostUndoManager(UndoManager* manager) { hostUndoManager_ = manager; }

 signals:
  void libraryURLChanged();
  void libraryRefused(const QString& reason);
  void brandsChanged();
  void selectionChanged();
  void openDocumentChanged();
  void brandChanged();  // of the open document
  void libraryProblemChanged();
  void isLoadingChanged();
  // A document's `saveProblem`, or which there are.
  void unsavedChanged();
  void noticesChanged();
  void endedOpeningChanged();
  void plainChanged();  // of the open brand
  void trashRefused(const BrandSummary& brand, const QString& reason);
  void newBrandRequestedChanged();
  void scrollToSectionChanged();

 private:
  struct OpenedLibrary {
    LibraryListing::Listing listing;
    std::optional<OpenedPackage> first;  // of the first row
  };
  struct Landing {
    BrandPlace brand;
    QUuid section;
    QList<Item> items;
  };

  // The folder
  void moveTo(const QString& folder);
  void tellStranded();
  void openLibrary();
  void libraryOpened(OpenedLibrary&& opened);
  void applyListing(const LibraryListing::Listing& listing);
  bool hasVanished(const LibraryListing::Listing& listing) const;
  void setLibraryProblem(const QString& problem);
  void setSilent(bool isSilent);
  void refreshRow(const BrandDocument& document);
  void followDocuments(const QList<BrandSummary>& before,
                       const QHash<QString, LibraryListing::Twin>& twinsBefore);
  void adoptOwnID(BrandDocument& document) const;
  // Does work on the disk, and tells if that takes long.
  template <class Work, class Done>
  void onDisk(Work work, Done done);
  // Does work on the disk and reads the folder behind it; `done` gets the work's result, with
  // `brands` as they are by then.
  template <class Work, class Done>
  void change(DiskWork& disk, Work work, Done done);
  // Does `work(progress)` among the copies, told as that text. `done` isn't called if the user has
  // ended it.
  template <class Work, class Done>
  void copy(const QString& text, Work work, Done done);
  // The same for what changes the library.
  template <class Work, class Done>
  void copyIn(const QString& text, Work work, Done done);

  // Documents
  void selectFirst();
  void loadSelection();
  void load(const QString& packageURL);
  void loaded(const QString& packageURL, Result<OpenedPackage>&& package);
  std::unique_ptr<BrandDocument> makeDocument(OpenedPackage&& package);
  void setOpenDocument(std::unique_ptr<BrandDocument> document);
  void packageMoved(BrandDocument& document);
  BrandDocument* documentAt(const QString& packageURL) const;
  std::vector<BrandDocument*> documents() const;
  void land(BrandDocument& document);
  QString placeOf(const BrandPlace& brand) const;
  // Calls `then` once all that is known of the package is on disk, or with why it isn't.
  void whenSaved(const QString& packageURL, std::function<void(const Result<void>&)> then);
  void renameOpenBrand(const QString& name);

  void deleteBy(const BrandSummary& brand, std::function<Result<void>()> removal,
                std::function<void(const Error&)> refused);
  void brandGone(const QString& packageURL);
  void addPickedColor(const QString& hex);
  void importBrandArchive(const QString& path);

  const LibraryServices services_;
  const std::shared_ptr<PackagePlaces> places_;
  const DocumentServices documentServices_;  // with them
  LibraryPreferences preferences_;
  OpeningWatch opening_;
  LongWork longWork_;
  const std::shared_ptr<GlobalSearch> search_;  // with the searches under way
  QString libraryURL_;
  QString wantedLibrary_;  // the folder that is being looked at, or was last
  QList<BrandSummary> brands_;
  QHash<QString, LibraryListing::Twin> twins_;
  bool isOpening_ = true;
  QString libraryProblem_;
  int underWay_ = 0;       // pieces of work on the disk
  QTimer patience_;        // with them
  bool isSilent_ = false;  // it ran out
  QTimer lookAgain_;
  std::optional<QString> selection_;
  std::unique_ptr<BrandDocument> openDocument_;
  UnsavedDocuments unsaved_;
  QSet<QString> loading_;  // packages
  QList<Notice> notices_;
  QList<Landing> landings_;             // for packages that are being loaded
  std::function<void()> afterLoading_;  // of the selected package
  bool newBrandRequested_ = false;
  std::optional<QUuid> scrollToSection_;
  std::unique_ptr<ColorSampler> colorSampler_;  // while a pick runs
  std::optional<QUuid> activeColorSectionID_;
  UndoManager* hostUndoManager_ = nullptr;
};

template <class Work, class Done>
void LibraryStore::change(DiskWork& disk, Work work, Done done) {
  auto both = [work = std::move(work), &files = services_.document.files, folder = libraryURL_] {
    auto result = work();
    return std::pair(std::move(result), LibraryListing::read(files, folder));
  };
  auto end = [store = QPointer(this), done = std::move(done)](auto&& answer) {
    if (!store) return;
    store->applyListing(answer.second);
    done(std::move(answer.first));
  };
  const bool mayTakeLong = &disk != &services_.document.disk;
  mayTakeLong ? disk.ask(std::move(both), std::move(end)) : onDisk(std::move(both), std::move(end));
}

template <class Work, class Done>
void LibraryStore::copy(const QString& text, Work work, Done done) {
  const auto progress = longWork_.begin(text);
  services_.copies.ask([work = std::move(work), progress] { return work(*progress); },
                       [store = QPointer(this), done = std::move(done), progress](auto&& made) {
                         if (!store) return;
                         store->longWork_.end(progress);
                         const bool isCancelled =
                             !made && made.error().kind == ErrorKind::cancelled;
                         if (!isCancelled) done(std::forward<decltype(made)>(made));
                       });
}

template <class Work, class Done>
void LibraryStore::copyIn(const QString& text, Work work, Done done) {
  const auto progress = longWork_.begin(text);
  change(
      services_.copies, [work = std::move(work), progress] { return work(*progress); },
      [this, done = std::move(done), progress](auto&& made) {
        longWork_.end(progress);
        const bool isCancelled = !made && made.error().kind == ErrorKind::cancelled;
        if (!isCancelled) done(std::forward<decltype(made)>(made));
      });
}

template <class Work, class Done>
void LibraryStore::onDisk(Work work, Done done) {
  if (underWay_++ == 0) patience_.start();
  services_.document.disk.ask(std::move(work),
                              [store = QPointer(this), done = std::move(done)](auto&& answer) {
                                if (!store) return;
                                if (--store->underWay_ == 0) store->setSilent(false);
                                done(std::forward<decltype(answer)>(answer));
                              });
}

}  // namespace tarnloft
