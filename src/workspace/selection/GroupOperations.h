#pragma once

#include "document/BrandDocument.h"
#include "workspace/selection/TileSelection.h"

namespace tarnloft {

// What a window does with its selected tiles, and what it may offer to do. Ids whose items have
// gone don't count. Each operation is one undoable step, and each leaves nothing selected. Borrows
// all it is given, for its own short life; the undo manager may be null. Main thread.
class GroupOperations {
 public:
  GroupOperations(BrandDocument& document, TileSelection& selection, UndoManager* undoManager)
      : document_(document), selection_(selection), undoManager_(undoManager) {}

  // The selected items that have a file to hand out.
  qsizetype exportableCount() const;
  qsizetype selectedImageCount() const;
  // At least two items are selected, and they are images all.
  bool canGroupAsLogo() const;
  // Those files, in the section's order.
  QList<AssetRef> selectedExports() const;

  // Selects the tiles of the selected section, or else of the first one that has any. Blocks of
  // text are no tiles.
  void selectAllInContext();

  // Gives the text that tells the user; none if there was nothing to delete.
  std::optional<QString> bulkDelete();
  // Appends copies with new ids.
  void bulkDuplicate();
  // Moves the items to that section's end; a section that isn't there takes none.
  void bulkMove(const QUuid& target);
  // Puts one logo set in the place of the selected images. Gives the text that tells the user; none
  // if there was no image.
  std::optional<QString> groupAsLogo();

 private:
  const Section* selectedSection() const;
  template <class Test>
  qsizetype count(Test&& test) const;
  // Runs `change(Brand&, Section& selected)` as one step and clears the selection.
  template <class Change>
  void mutate(const QString& actionName, Change&& change);

  BrandDocument& document_;
  TileSelection& selection_;
  UndoManager* undoManager_;
};

}  // namespace tarnloft
