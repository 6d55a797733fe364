#pragma once

#include "assets/DragPreparation.h"
#include "assets/ExportTarget.h"
#include "document/BrandDocument.h"
#include "document/ItemBinding.h"
#include "workspace/WorkspaceServices.h"

#include <QPointer>

namespace tarnloft {

// What the user does with one item of an open brand. Items are named by their ids, and nothing
// happens with those that have gone. Not undoable unless it says so. Main thread.
class TileCommands : public QObject {
  Q_OBJECT

 public:
  TileCommands(BrandDocument& document, const WindowParts& window,
               const WorkspaceServices& services);

  // Puts the text on the clipboard and tells of it: "Copied " and `what`.
  void copy(const QString& text, const QString& what);
  // In the notation of the user's preference.
  void copyColor(const QString& hex);

  // Opens the sheet that changes a colour, a gradient, a font or code.
  void edit(const QUuid& item);
  void rename(const QUuid& item);
  void editNotes(const QUuid& item);
  // Of a logo set.
  void editVariants(const QUuid& item);
  // Opens the sheet that plays a video.
  void play(const QUuid& item);

  void setBackdrop(const QUuid& item, std::optional<ImageBackground> background);
  void setAccent(const QString& hex);
  void setBrandIcon(const AssetRef& asset);
  void setSectionIcon(const AssetRef& asset, const QUuid& section);

  // Opens the sheet that hands out a picture of the item's in another form.
  void startExport(const QUuid& item, const AssetRef& asset);

  // Shows the file in the desktop's file manager.
  void reveal(const AssetRef& asset);
  // Asks for a font's file and brings it in for that font.
  void attachFontFile(const QUuid& item);
  // Puts an image for each variant in the place of a logo set; undoable.
  void ungroupLogo(const QUuid& item);

  // Puts a copy behind it.
  void duplicate(const QUuid& item);
  // Swaps it with its neighbour in the section that many places on, if there is one.
  void move(const QUuid& item, int step);
  void remove(const QUuid& item);

  // Start a drag through the desktop; return when it has ended.
  void drag(const Item& item, const DragLook& look);
  void dragVariant(const AssetRef& asset, const DragLook& look);

  void tell(const QString& text);

 private:
  void showExport(const QUuid& item, const ExportTarget& target);
  std::unique_ptr<ItemBinding> bound(const QUuid& item) const;
  // Runs `change(section, place)` where the item stands.
  void editPlace(const QUuid& item,
                 const std::function<void(Section& section, qsizetype place)>& change);

  // `name` is what the user knows the thing by that `key` tells from others.
  void drag(const QString& key, const QString& name, std::function<DragItem()> prepare,
            const DragLook& look);

  QPointer<BrandDocument> document_;
  const WindowParts window_;
  const WorkspaceServices services_;
  DragPreparation dragPreparation_{services_.dragThreads};
};

}  // namespace tarnloft
