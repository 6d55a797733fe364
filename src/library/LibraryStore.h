#pragma once

#include "document/BrandDocument.h"
#include "library/BrandSummary.h"
#include "library/GlobalSearch.h"
#include "library/LibraryPreferences.h"
#include "library/LibraryServices.h"

#include <QObject>
#include <QPointer>

namespace tarnloft {

// The one long-lived model of the program: the library folder, the listing of its packages, the
// selection and the one open document, and the app-wide preferences. `brands` changes only through
// `scan`. Nothing here reports a failure. Main thread only.
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
  // Changes to another folder, which becomes the chosen one, and selects its first row.
  void setLibraryURL(const QString& path);

  // In display order.
  const QList<BrandSummary>& brands() const { return brands_; }
  // Reads the folder again. Leaves the selection and the open document alone.
  void scan();
  // Puts the row in front of another, or at the end.
  void moveBrand(const QUuid& id, const std::optional<QUuid>& before);

  // --- Selection. Nothing is selected; or a package is, with its document open; or a package that
  // can't be read is, with none.

  const std::optional<QString>& selection() const { return selection_; }
  // Selects and loads. Selecting the open package again does nothing.
  void select(const std::optional<QString>& packageURL);
  // Null if none is open. Owned by the store; it goes with the next selection.
  BrandDocument* openDocument() const { return openDocument_.get(); }

  // Appends items to a section of a package that was open when their making began, whether or not
  // it still is. A package that is gone loses them.
  void addItems(const QString& packageURL, const QUuid& section, const QList<Item>& items);

  // --- Brands that come and go. Each does its work on the disk, scans and moves the selection.

  // Makes a brand, selects it and gives its document; null, with a line in the system log, if its
  // folder can't be made.
  BrandDocument* createBrand(const QString& name);
  // Renames the open brand and moves its package to a name made from it, which gets a suffix if it
  // is taken, by the package itself too.
  void renameSelectedBrand(const QString& name);
  // Copies the package as "<name> Copy" with an id of its own and selects the copy.
  void duplicateBrand(const BrandSummary& brand);
  // Moves the package to the trash. The selection moves on to the first row if it was selected.
  void deleteBrand(const BrandSummary& brand);
  // Selects the brand, asks where to and publishes its page.
  void exportBrandPage(const BrandSummary& brand);
  // Asks where to, writes the package as a zip and shows it.
  void exportBrand(const BrandSummary& brand);
  void exportSelectedBrand();
  // Asks for an archive or a package and adds it as a brand with an id of its own, named after its
  // package; selects it. An archive without a whole package in it adds nothing.
  void importBrand();

  // --- Preferences

  LibraryPreferences& preferences() { return preferences_; }

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
  // Selects the hit's brand and, on the next turn of the event loop, asks for its section.
  void reveal(const SearchHit& hit);

  // --- Colours from the screen

  // Lets the user pick a colour and adds it to the open brand, undoably; beeps without one.
  void pickColorFromScreen();
  const std::optional<QUuid>& activeColorSectionID() const { return activeColorSectionID_; }
  void setActiveColorSectionID(const std::optional<QUuid>& section);
  // The window's; borrowed, null for none.
  void setHostUndoManager(UndoManager* manager) { hostUndoManager_ = manager; }

 signals:
  void libraryURLChanged();
  void brandsChanged();
  void selectionChanged();
  void openDocumentChanged();
  void brandChanged();  // of the open document
  void newBrandRequestedChanged();
  void scrollToSectionChanged();

 private:
  void openLibrary();
  void selectFirst();
  void loadSelection();
  void setOpenDocument(std::unique_ptr<BrandDocument> document);
  void addPickedColor(const QString& hex);
  void importBrandArchive(const QString& path);
  void importArchivedPackage(const QString& archive, const QString& folder);
  std::optional<QString> findYewstack(const QString& folder) const;
  void finishImport(const QString& packageURL);

  const LibraryServices services_;
  LibraryPreferences preferences_;
  GlobalSearch search_;
  QString libraryURL_;
  QList<BrandSummary> brands_;
  std::optional<QString> selection_;
  std::unique_ptr<BrandDocument> openDocument_;
  bool newBrandRequested_ = false;
  std::optional<QUuid> scrollToSection_;
  std::unique_ptr<ColorSampler> colorSampler_;  // while a pick runs
  std::optional<QUuid> activeColorSectionID_;
  UndoManager* hostUndoManager_ = nullptr;
};

}  // namespace tarnloft
