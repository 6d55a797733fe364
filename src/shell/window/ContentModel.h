#pragma once

#include "controls/sheets/NameSheet.h"
#include "shell/alerts/Alerts.h"
#include "shell/menus/EditCommands.h"
#include "shell/menus/ShellCommands.h"
#include "shell/menus/ViewChoices.h"
#include "shell/menus/WindowUndo.h"
#include "shell/sidebar/Sidebar.h"
#include "shell/window/WorkLine.h"
#include "workspace/BrandWorkspace.h"

namespace tarnloft {

// What a main window shows and does; made with the window and gone with it.
class ContentModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  Q_PROPERTY(tarnloft::ShellCommands* commands READ commands CONSTANT)
  Q_PROPERTY(tarnloft::EditCommands* edit READ edit CONSTANT)
  Q_PROPERTY(tarnloft::ViewChoices* view READ view CONSTANT)
  Q_PROPERTY(tarnloft::Sidebar* sidebar READ sidebar CONSTANT)
  Q_PROPERTY(tarnloft::WindowUndo* undo READ undo CONSTANT)
  Q_PROPERTY(tarnloft::Alerts* alerts READ alerts CONSTANT)
  Q_PROPERTY(tarnloft::WorkLine* work READ work CONSTANT)
  // The open brand's workspace, in a list for what repeats a page for it; empty for none. The
  // module of its type isn't among this one's imports, as it would be loaded with it, before the
  // first frame.
  Q_PROPERTY(QVariantList pages READ pages NOTIFY workspaceChanged)
  Q_PROPERTY(tarnloft::SheetHost* sheets READ sheets CONSTANT)
  Q_PROPERTY(tarnloft::Thumbnails* thumbnails READ thumbnails CONSTANT)
  // The text of the toast that is shown; empty for none.
  Q_PROPERTY(QString toast READ toast NOTIFY toastChanged)
  Q_PROPERTY(Detail detail READ detail NOTIFY detailChanged)
  Q_PROPERTY(QString title READ title NOTIFY titleChanged)

 public:
  enum class Detail {
    Opening,      // the library, or the selected brand, is being read
    Unavailable,  // the library can't be read
    Welcome,      // the library is empty
    NoSelection,  // it has brands, and none is open
    Brand
  };
  Q_ENUM(Detail)

  // Borrowed: all of the services outlive the content. Without an updater it tells of no updates.
  explicit ContentModel(const WorkspaceServices& services, UpdaterViewModel* updater = nullptr,
                        QObject* parent = nullptr);
  ~ContentModel() override;
  Q_DISABLE_COPY_MOVE(ContentModel)

  ShellCommands* commands() { return &commands_; }
  EditCommands* edit() { return &edit_; }
  ViewChoices* view() { return &view_; }
  Sidebar* sidebar() { return &sidebar_; }
  WindowUndo* undo() { return &undo_; }
  Alerts* alerts() { return &alerts_; }
  WorkLine* work() { return &work_; }
  TileSelection* selection() { return &selection_; }
  ToastCenter* toasts() { return &toasts_; }
  // The window has shown a frame: the open brand's fonts come, each of which has all text laid out
  // anew, and later brands bring theirs at once.
  void followFirstFrame();
  // Another brand gets another one, on the next turn of the event loop.
  BrandWorkspace* workspace() const { return workspace_.get(); }
  QVariantList pages() const;
  Thumbnails* thumbnails() const { return &services_.thumbnails; }
  QString toast() const;

  Detail detail() const;
  // The window's, led by the open brand's name.
  QString title() const;

  SheetHost* sheets() { return &sheets_; }
  // Asks for a name, beginning with what was typed at its last opening, and makes a brand.
  Q_INVOKABLE void askNewBrand();
  // Asks for a name and adds a section to the open brand.
  Q_INVOKABLE void askNewSection();
  // The search of the open brand's page gets the keyboard.
  Q_INVOKABLE void find();
  Q_INVOKABLE void showVersions();
  Q_INVOKABLE void showAbout();
  // With the keys of the window's menus, as `ShortcutsSheet` takes them.
  Q_INVOKABLE void showShortcuts(const QVariantList& ofMenus);

 signals:
  void detailChanged();
  void workspaceChanged();
  void toastChanged();
  // The page shall scroll to that section of the open brand.
  void sectionRequested(int index);
  void titleChanged();

 private:
  void answerRequest();
  void answerScrollRequest();
  void followSelection();
  enum class Renewal { ofAnother, always };
  void renewPage(Renewal renewal = Renewal::ofAnother);
  void followDocument();
  void registerFonts(const BrandDocument& document);
  std::unique_ptr<BrandWorkspace> makeWorkspace(BrandDocument& document);

  const WorkspaceServices services_;
  LibraryStore& library_;
  WindowUndo undo_;
  TileSelection selection_;
  ToastCenter toasts_;
  SheetHost sheets_;
  ShellCommands commands_;
  EditCommands edit_;
  ViewChoices view_;
  Sidebar sidebar_;
  Alerts alerts_;
  WorkLine work_;
  std::optional<QString> selectedBrand_;
  bool isFrameShown_ = false;
  QPointer<NameSheet> newBrandSheet_;  // while it is up
  QString newBrandName_;
  std::unique_ptr<BrandWorkspace> workspace_;
  QPointer<BrandDocument> undoDocument_;  // whose steps the undo has
};

}  // namespace tarnloft
