#pragma once

#include "shell/ShellCommands.h"
#include "shell/Sidebar.h"
#include "shell/StackUndoManager.h"
#include "workspace/BrandWorkspace.h"

namespace tarnloft {

// What a main window shows and does; made with the window and gone with it.
class ContentModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  Q_PROPERTY(tarnloft::ShellCommands* commands READ commands CONSTANT)
  Q_PROPERTY(tarnloft::Sidebar* sidebar READ sidebar CONSTANT)
  Q_PROPERTY(tarnloft::StackUndoManager* undo READ undo CONSTANT)
  Q_PROPERTY(tarnloft::ToastCenter* toasts READ toasts CONSTANT)
  Q_PROPERTY(tarnloft::Thumbnails* thumbnails READ thumbnails CONSTANT)
  // The open brand's; null while none is open.
  Q_PROPERTY(tarnloft::BrandWorkspace* workspace READ workspace NOTIFY workspaceChanged)
  Q_PROPERTY(Detail detail READ detail NOTIFY detailChanged)
  Q_PROPERTY(QString title READ title NOTIFY titleChanged)
  Q_PROPERTY(bool showNewBrand READ showsNewBrand WRITE setShowNewBrand NOTIFY showNewBrandChanged)
  Q_PROPERTY(
      QString newBrandName READ newBrandName WRITE setNewBrandName NOTIFY newBrandNameChanged)

 public:
  enum class Detail {
    welcome,      // the library is empty
    noSelection,  // it has brands, and none is open
    brand
  };
  Q_ENUM(Detail)

  // Borrowed: the library and all of the services outlive the content.
  ContentModel(LibraryStore& library, const LibraryServices& services,
               const WorkspaceServices& workspaceServices, QObject* parent = nullptr);
  ~ContentModel() override;
  Q_DISABLE_COPY_MOVE(ContentModel)

  ShellCommands* commands() { return &commands_; }
  Sidebar* sidebar() { return &sidebar_; }
  StackUndoManager* undo() { return &undo_; }
  TileSelection* selection() { return &selection_; }
  ToastCenter* toasts() { return &toasts_; }
  Thumbnails* thumbnails() const { return &workspaceServices_.thumbnails; }
  BrandWorkspace* workspace() const { return workspace_.get(); }

  Detail detail() const;
  // The window's, led by the open brand's name.
  QString title() const;

  // Whether the new-brand sheet is up, and its text, which it keeps for its next opening.
  bool showsNewBrand() const { return showNewBrand_; }
  void setShowNewBrand(bool show);
  const QString& newBrandName() const { return newBrandName_; }
  void setNewBrandName(const QString& name);
  Q_INVOKABLE void createBrand(const QString& name) { library_.createBrand(name); }

 signals:
  void workspaceChanged();
  // The page should scroll to that section, counted among all.
  void sectionRequested(int index);
  void detailChanged();
  void titleChanged();
  void showNewBrandChanged();
  void newBrandNameChanged();

 private:
  void answerRequest();
  void followSelection();
  void openWorkspace();
  void brandShown();
  void showRequestedSection();

  LibraryStore& library_;
  StackUndoManager undo_;
  const WorkspaceServices workspaceServices_;
  TileSelection selection_;
  ToastCenter toasts_;
  std::unique_ptr<BrandWorkspace> workspace_;
  ShellCommands commands_;
  Sidebar sidebar_;
  std::optional<QString> selectedBrand_;
  bool showNewBrand_ = false;
  QString newBrandName_;
};

}  // namespace tarnloft
