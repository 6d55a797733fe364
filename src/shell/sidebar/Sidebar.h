#pragma once

#include "shell/sidebar/SidebarModel.h"

namespace tarnloft {

// What the sidebar does: its rows, what is asked about a brand just now, and the drag of a row.
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
  Q_PROPERTY(bool renaming READ isRenaming NOTIFY renamingChanged)
  Q_PROPERTY(QString renameText READ renameText NOTIFY renamingChanged)
  Q_PROPERTY(bool deleting READ isDeleting NOTIFY deletingChanged)
  Q_PROPERTY(QString deleteTitle READ deleteTitle NOTIFY deletingChanged)
  // The file manager's entry of a brand's menu.
  Q_PROPERTY(QString revealText READ revealText CONSTANT)
  Q_PROPERTY(QString draggingBrandID READ draggingBrandID NOTIFY draggingChanged)
  // What the dragged brand's row shows.
  Q_PROPERTY(QString draggingName READ draggingName NOTIFY draggingChanged)
  Q_PROPERTY(tarnloft::EmblemLook draggingLook READ draggingLook NOTIFY draggingChanged)
  Q_PROPERTY(bool draggingMarked READ isDraggingMarked NOTIFY draggingChanged)
  Q_PROPERTY(bool draggingSelected READ isDraggingSelected NOTIFY draggingChanged)

 public:
  // Borrowed: the library and all of the services outlive the sidebar.
  Sidebar(LibraryStore& library, const LibraryServices& services, QObject* parent = nullptr);

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

  // --- The rename sheet, up while `renaming`. It starts with `renameText`.

  bool isRenaming() const { return renaming_.has_value(); }
  QString renameText() const { return renaming_ ? renaming_->name : QString(); }
  Q_INVOKABLE void beginRename(const QString& packageURL);
  // Leaves the brand selected, under its new name.
  Q_INVOKABLE void commitRename(const QString& name);
  Q_INVOKABLE void endRename();

  // --- The delete question, up while `deleting`

  bool isDeleting() const { return pendingDelete_.has_value(); }
  QString deleteTitle() const;
  Q_INVOKABLE void askDelete(const QString& packageURL);
  Q_INVOKABLE void confirmDelete();
  Q_INVOKABLE void endDelete();

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
  void renamingChanged();
  void deletingChanged();
  void draggingChanged();
  // The user moved a brand; the rows follow on the next turn of the event loop.
  void moved();

 private:
  std::optional<BrandSummary> brandAt(const QString& packageURL) const;
  QVariant ofDragged(SidebarModel::Role role) const;
  qsizetype indexOf(const QString& brandID) const;
  void setRenaming(const std::optional<BrandSummary>& brand);
  void setPendingDelete(const std::optional<BrandSummary>& brand);
  void setDragging(const QString& brandID);
  void move(const QString& brandID, const std::optional<QUuid>& before);

  LibraryStore& library_;
  FileViewer& viewer_;
  SidebarModel rows_;
  bool isFolded_ = false;
  bool isOpen_ = false;
  std::optional<BrandSummary> renaming_;
  std::optional<BrandSummary> pendingDelete_;
  QString draggingBrandID_;
};

}  // namespace tarnloft
