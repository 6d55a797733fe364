#pragma once

#include "assets/DragPreparation.h"
#include "assets/TileDrag.h"
#include "library/LibraryStore.h"
#include "pictures/EmblemLook.h"
#include "pictures/Thumbnails.h"
#include "platform/Fonts.h"
#include "platform/Pasteboard.h"
#include "quickgrab/MenuBarPrefs.h"
#include "quickgrab/panel/BrandSearch.h"
#include "quickgrab/panel/GrabContent.h"
#include "quickgrab/panel/GrabThing.h"

#include <QQuickItem>
#include <QTimer>

namespace tarnloft {

// What the panel needs of its surroundings. Borrowed: all of it outlives the panel.
struct QuickGrabServices {
  LibraryStore& library;
  MenuBarPrefs& prefs;
  Pasteboard& pasteboard;
  Thumbnails& thumbnails;
  FileStore& files;
  DragSession& dragSession;
  Fonts& fonts;
  QThreadPool& workers;
  QThreadPool& dragThreads;  // for DragPreparation
};

// What the quick grab panel shows and does: the open brand reduced to what can be grabbed at once,
// and the search, the choice and the flash. While it isn't active it follows nothing. Main thread.
class QuickGrab : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The panel has one")
  Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY searchChanged)
  Q_PROPERTY(State state READ state NOTIFY changed)
  Q_PROPERTY(bool hasDocument READ hasDocument NOTIFY brandChanged)
  Q_PROPERTY(QString brandName READ brandName NOTIFY brandChanged)
  Q_PROPERTY(tarnloft::EmblemLook emblem READ emblem NOTIFY brandChanged)
  Q_PROPERTY(QVariantList brands READ brands NOTIFY brandChanged)  // of BrandChoice
  Q_PROPERTY(int contentHeight READ contentHeight NOTIFY changed)
  Q_PROPERTY(int current READ current NOTIFY currentChanged)  // an entry's place, or -1
  Q_PROPERTY(QRect currentRoom READ currentRoom NOTIFY currentChanged)
  Q_PROPERTY(QString flashText READ flashText NOTIFY flashTextChanged)
  Q_PROPERTY(tarnloft::Thumbnails* thumbnails READ thumbnails CONSTANT)
  Q_PROPERTY(bool hasSettings MEMBER hasSettings_ NOTIFY hasSettingsChanged)

 public:
  enum class State { List, NoBrand, NoTypes, NoMatches, Nothing };
  Q_ENUM(State)
  enum class Step { Left, Right, Up, Down, PageUp, PageDown, First, Last };
  Q_ENUM(Step)

  explicit QuickGrab(const QuickGrabServices& services);

  // The panel is about to show, or has gone.
  void setActive(bool isActive);
  // A drag from the panel is under way.
  bool isDragging() const { return isDragging_; }
  // There is a window of settings to open.
  void setHasSettings(bool has);

  const QString& search() const { return search_; }
  // Empty or not, from its first letter on the first entry is the current one.
  void setSearch(const QString& text);
  State state() const;
  bool hasDocument() const { return library_.openDocument() != nullptr; }
  QString brandName() const;
  EmblemLook emblem() const;
  QVariantList brands() const;
  // Those in sight, and a little beyond.
  const QList<GrabThing>& things() const { return things_; }
  int contentHeight() const { return layout().height; }
  int current() const { return current_; }
  const QRect& currentRoom() const { return currentRoom_; }
  const QString& flashText() const { return flashText_; }
  Thumbnails* thumbnails() const { return &services_.thumbnails; }

  // The heights between which the view shows the list.
  Q_INVOKABLE void setSight(int top, int height);
  // Moves the choice; false at the list's edge. Without one, to the first entry.
  Q_INVOKABLE bool move(tarnloft::QuickGrab::Step step);
  Q_INVOKABLE void setCurrent(int place);
  // Copies what the entry stands for. A picture's click does nothing, since it is for dragging; by
  // `copyFile` its file is copied.
  Q_INVOKABLE void copy(int place);
  Q_INVOKABLE void copyFile(int place);
  // The colour of that number among those of the list, from 1 on.
  Q_INVOKABLE void copyColor(int number);
  Q_INVOKABLE void chooseBrand(const QString& packageURL);
  // For `carryOut`.
  Q_INVOKABLE void drag(int place, QQuickItem* view, const QImage& grabbed, qreal radius);

 signals:
  void changed();
  void thingsChanged();
  void brandChanged();
  void searchChanged();
  // The list is another one: it is shown from its top.
  void rewound();
  void currentChanged();
  void flashTextChanged();
  void hasSettingsChanged();
  void dragEnded();
  // What the user asks of the program.
  void openAppRequested();
  void openSettingsRequested();
  void closeRequested();

 private:
  void scheduleUpdate();
  void update();
  void filter();
  void showList();
  void registerFonts();
  void placeCurrent();
  void setCurrentPlace(int place);
  const PanelLayout& layout() const { return content_.layout(); }
  std::function<QList<DragItem>()> dragWork(const MediaEntry& entry) const;
  std::optional<DragItem> prepared(const MediaEntry& entry);
  void flash(const QString& text);
  GrabbedKinds kinds() const;

  const QuickGrabServices services_;
  LibraryStore& library_;
  MenuBarPrefs& prefs_;
  bool isActive_ = false;
  bool isStale_ = true;
  bool isUpdateDue_ = false;
  bool isDragging_ = false;
  bool hasSettings_ = false;
  QString search_;
  BrandSearch brandSearch_;
  QString packageURL_;
  QList<Section> sections_;
  GrabContent content_;
  QList<GrabThing> things_;
  int sightTop_ = 0;
  int sightHeight_ = 480;
  int current_ = -1;
  QUuid currentID_;
  QRect currentRoom_;
  QString flashText_;
  QTimer flashEnd_;
  DragPreparation dragPreparation_{services_.dragThreads};
  QString fontsOf_;  // the package whose fonts are registered
};

}  // namespace tarnloft
