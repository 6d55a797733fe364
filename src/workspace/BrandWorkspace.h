#pragma once

#include "controls/sheets/SheetHost.h"
#include "model/ShownText.h"
#include "sheets/emblems/EmblemWords.h"
#include "workspace/ToastCenter.h"
#include "workspace/WorkspaceServices.h"
#include "workspace/flow/TileHeights.h"
#include "workspace/page/SectionListModel.h"
#include "workspace/search/PageSearch.h"
#include "workspace/selection/SelectionActions.h"
#include "workspace/tiles/TileCommands.h"

#include <QPointer>

namespace tarnloft {

// The view model of one open brand's page. A window makes one for each document that it shows:
//
//   BrandWorkspace(document, windowParts, services)
//
// gives it to `BrandPage { workspace: … }`, and drops it when the document goes; all operations do
// nothing once it has gone. What is on the page follows the document once in each turn of the event
// loop. Main thread.
class BrandWorkspace : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QString name READ name NOTIFY nameChanged)  // as it is shown
  Q_PROPERTY(QString wholeName READ wholeName NOTIFY nameChanged)
  Q_PROPERTY(tarnloft::SectionListModel* sections READ sections CONSTANT)
  Q_PROPERTY(tarnloft::PageSearch* search READ search CONSTANT)
  // The page's own search finds nothing.
  Q_PROPERTY(bool nothingFound READ isNothingFound NOTIFY foundChanged)
  Q_PROPERTY(tarnloft::SelectionActions* selected READ selected CONSTANT)
  Q_PROPERTY(double gridMinWidth READ gridMinWidth NOTIFY metricsChanged)
  Q_PROPERTY(double gridMaxWidth READ gridMaxWidth NOTIFY metricsChanged)
  Q_PROPERTY(double tileHeight READ tileHeight NOTIFY metricsChanged)
  // Tiles tell all of their item.
  Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded NOTIFY metricsChanged)
  // Small, medium, large: the place of the preference's case.
  Q_PROPERTY(int tileSize READ tileSize WRITE setTileSize NOTIFY metricsChanged)
  Q_PROPERTY(tarnloft::AssetSpecs* specs READ specs CONSTANT)
  Q_PROPERTY(tarnloft::Thumbnails* thumbnails READ thumbnails CONSTANT)
  Q_PROPERTY(tarnloft::Posters* posters READ posters CONSTANT)

 public:
  BrandWorkspace(BrandDocument& document, const WindowParts& window,
                 const WorkspaceServices& services, QObject* parent = nullptr);
  ~BrandWorkspace() override;

  QString name() const { return shownText(name_); }
  const QString& wholeName() const { return name_; }
  SectionListModel* sections() { return &sections_; }
  PageSearch* search() { return &search_; }
  bool isNothingFound() const { return isNothingFound_; }
  SelectionActions* selected() { return &selected_; }
  double gridMinWidth() const { return services_.library.gridMinWidth(); }
  double gridMaxWidth() const { return services_.library.gridMaxWidth(); }
  double tileHeight() const;
  bool isExpanded() const;
  void setExpanded(bool expanded);
  int tileSize() const;
  void setTileSize(int size);
  AssetSpecs* specs() const { return &services_.specs; }
  Thumbnails* thumbnails() const { return &services_.thumbnails; }
  Posters* posters() const { return &services_.posters; }

  // Gives the brand that name, without the white space around it; nothing happens if there is none
  // or it is the brand's already.
  Q_INVOKABLE void rename(const QString& name);
  Q_INVOKABLE void showVersions();
  // Asks for a name and appends an empty section, not undoable.
  Q_INVOKABLE void askNewSection();

  // --- For the models and items of its page

  BrandDocument* document() const { return document_; }  // null once it has gone
  TileSelection& selection() const { return window_.selection; }

  FlowMetrics flowMetrics() const;

  // The brand is shown without its fonts and pictures.
  bool isPlain() const { return services_.library.isPlain(); }

  EmblemLook lookOf(const std::optional<Emblem>& emblem, const QString& defaultSymbol) const;
  // Empty for a name that leads out of the package.
  QString assetPath(const AssetRef& asset) const;

  // What is done with single items.
  TileCommands& commands() { return commands_; }
  // Lets the user pick a colour of the screen and appends it to the section, undoably.
  void pickColor(const QUuid& section);
  // Colours from the screen go there from now on.
  void collectColorsIn(const QUuid& section);

  // Opens the sheet that gives the section its emblem.
  void editEmblem(const QUuid& section, const EmblemWords& words);

  // Swaps it with the one `step` places on, if there is one.
  void moveSection(const QUuid& section, int step);

  void importChosen(const QStringList& mimeTypes, DropImport::MediaKind kind, const QUuid& section);
  void importChosenFonts(const QUuid& section);

  // Whether something of that type is offered.
  bool offers(const QMimeData& data, const QString& type) const;
  // A drop on a section: an item of this brand moves to its end, files and pictures are imported.
  bool drop(const QMimeData& data, const QUuid& section);
  // A drop on an item, which takes items alone: they move in front of it.
  bool dropBefore(const QMimeData& data, const QUuid& section, const QUuid& before);

 signals:
  void nameChanged();
  void foundChanged();
  // The page's search field shall have the keyboard.
  void searchRequested();
  void metricsChanged();
  // The package stands elsewhere, and so do its files.
  void placeChanged();

 private:
  void refreshSoon();
  void refresh();
  void addPicked(const QString& hex, const QUuid& section);
  void showEyedropperTip();

  QPointer<BrandDocument> document_;
  const WindowParts window_;
  const WorkspaceServices services_;
  TileCommands commands_;
  QString name_;
  PageSearch search_;
  SelectionActions selected_;
  bool isNothingFound_ = false;
  bool isRefreshDue_ = false;
  SectionListModel sections_;
};

}  // namespace tarnloft
