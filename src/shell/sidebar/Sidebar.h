#pragma once

#include "controls/sheets/SheetHost.h"
#include "shell/sidebar/SidebarModel.h"
#include "workspace/WorkspaceServices.h"

namespace tarnloft {

// What the sidebar does: its rows, what it asks about a brand, and the drag of a row.
// Brands are named by their package's path. A brand that has gone since is passed over.
class Sidebar : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  Q_PROPERTY(tarnloft::SidebarModel* rows READ rows CONSTANT)
  // The window is too narrow for it to stand beside the page, as its view tells.
  Q_PROPERTY(bool folded READ isFolded WRITE setFolded NOTIFY foldedChanged)
  // While folded: it lies over the page. Something being chosen in it ends that.
  Q_PROPERTY(bool open READ isOpen WRITE setOpen NOTIFY openChanged)
  // The file manager's entry of a brand's menu.
  Q_PROPERTY(QString revealText READ revealText CONSTANT)
  Q_PROPERTY(QString draggingBrandID READ draggingBrandID NOTIFY draggingChanged)
  // What the dragged brand's row shows.
  Q_PROPERTY(QString draggingName READ draggingName NOTIFY draggingChanged)
  Q_PROPERTY(tarnloft::EmblemLook draggingLook READ draggingLook NOTIFY draggingChanged)
  Q_PROPERTY(bool draggingMarked READ isDraggingMarked NOTIFY draggingChanged)
  Q_PROPERTY(bool draggingSelected READ isDraggingSelected NOTIFY draggingChanged)

 public:
  // Borrowed: all of it outlives the sidebar.
  Sidebar(const WorkspaceServices& services, SheetHost& sheets, QObject* parent = nullptr);

  SidebarModel* rows() { return &rows_; }

  bool isFolded() const { return isFolded_; }
  void setFolded(bool folded);
  bool isOpen() const { return isOpen_; }
  void setOpen(bool open);

  Q_INVOKABLE void select(const QString& packageURL);
  // Asks the workspace to scroll to a section of the open brand.
  Q_INVOKABLE void scrollToSection(const QString& id);

  Q_INVOKABLE void duplicate(const QString& packageURL);
  Q_INVOKABLE void exportPage(const QString& packageURL);
  Q_INVOKABLE void exportFile(const QString& packageURL);
  Q_INVOKABLE void reveal(const QString& packageURL);

  static QString revealText();

  // Open the brand, and the sheet of its emblem or of its accent colours.
  Q_INVOKABLE void editEmblem(const QString& packageURL);
  Q_INVOKABLE void editAccent(const QString& packageURL);
  // Asks for another name, which leaves the brand selected.
  Q_INVOKABLE void rename(const QString& packageURL);
  // Asks, and moves the brand to the trash.
  Q_INVOKABLE void moveToTrash(const QString& packageURL);

  // --- Reordering: the order changes while the drag enters rows, and is kept at once

  // Empty while no brand is dragged.
  QString draggingBrandID() const { return draggingBrandID_; }
  QString draggingName() const { return ofDragged(SidebarModel::name).toString(); }
  EmblemLook draggingLook() const { return ofDragged(SidebarModel::look).value<EmblemLook>(); }
  bool isDraggingMarked() const { return ofDragged(SidebarModel::marked).toBool(); }
  bool isDraggingSelected() const { return ofDragged(SidebarModel::selected).toBool(); }
  Q_INVOKABLE void beginDrag(const QString& brandID);
  Q_INVOKABLE void dragEntered(const QString& targetID);
  Q_INVOKABLE void dragEnteredEnd();
  Q_INVOKABLE void endDrag();

  // One place up or down, for the keyboard.
  Q_INVOKABLE void moveUp(const QString& brandID);
  Q_INVOKABLE void moveDown(const QString& brandID);

 signals:
  void foldedChanged();
  void openChanged();
  void draggingChanged();
  // The user moved a brand; the rows follow on the next turn of the event loop.
  void moved();

 private:
  std::optional<BrandSummary> brandAt(const QString& packageURL) const;
  std::optional<BrandSummary> brandOf(const QUuid& id) const;
  // Runs `edit(BrandSummary, BrandDocument&)` with the brand when it is the open one.
  void whenOpen(const QString& packageURL,
                std::function<void(const BrandSummary& brand, BrandDocument& document)> edit);
  void endWithBrand(SheetModel& sheet, const QUuid& brand);
  QVariant ofDragged(SidebarModel::Role role) const;
  qsizetype indexOf(const QString& brandID) const;
  void setDragging(const QString& brandID);
  void move(const QString& brandID, const std::optional<QUuid>& before);

  const WorkspaceServices services_;
  LibraryStore& library_;
  SheetHost& sheets_;
  SidebarModel rows_;
  bool isFolded_ = false;
  bool isOpen_ = false;
  QString draggingBrandID_;
};

}  // namespace tarnloft
