#pragma once

#include "pictures/EmblemLook.h"
#include "publish/PaletteExport.h"
#include "workspace/page/ItemListModel.h"
#include "workspace/search/SearchableItems.h"

#include <QStringList>

namespace tarnloft {

class BrandWorkspace;

// One section on the page: what its header shows, the items that are shown, and what its menus do.
// It lives as long as the section is on the page. Main thread.
class SectionModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a workspace")
  Q_PROPERTY(tarnloft::BrandWorkspace* workspace READ workspace CONSTANT)
  Q_PROPERTY(tarnloft::ItemListModel* items READ items CONSTANT)
  Q_PROPERTY(QString name READ name NOTIFY changed)
  Q_PROPERTY(tarnloft::EmblemLook emblem READ emblem NOTIFY changed)
  Q_PROPERTY(bool empty READ isEmpty NOTIFY changed)
  // False while a search finds nothing in it.
  Q_PROPERTY(bool shown READ isShown NOTIFY changed)
  Q_PROPERTY(bool hasColors READ hasColors NOTIFY changed)
  Q_PROPERTY(bool canMoveUp READ canMoveUp NOTIFY placeChanged)
  Q_PROPERTY(bool canMoveDown READ canMoveDown NOTIFY placeChanged)

 public:
  // The workspace outlives it.
  SectionModel(BrandWorkspace& workspace, const Section& section);

  const QUuid& id() const { return section_.id; }
  const Section& section() const { return section_; }
  BrandWorkspace* workspace() const { return &workspace_; }
  ItemListModel* items() { return &items_; }
  const SharedList<Item>& shownItems() const { return items_.items(); }
  // Of all its items, in order.
  QList<QUuid> itemOrder() const;

  QString name() const { return section_.name; }
  EmblemLook emblem() const;
  bool isEmpty() const { return section_.items.isEmpty(); }
  bool isShown() const { return items_.count() > 0 || searchText_.trimmed().isEmpty(); }
  bool hasColors() const { return hasColors_; }
  bool canMoveUp() const { return place_ > 0; }
  bool canMoveDown() const { return place_ < last_; }

  void setSection(const Section& section, const QString& searchText);
  void setPlace(qsizetype place, qsizetype count);

  // Not undoable, as all that follows unless it says so.
  Q_INVOKABLE void rename(const QString& name);

  // --- Entries of the add menu. Each appends to the section; a sheet edits what needs it.
  Q_INVOKABLE void addHeader();
  Q_INVOKABLE void addText();
  Q_INVOKABLE void addColor();
  Q_INVOKABLE void addGradient();
  Q_INVOKABLE void addFont();
  Q_INVOKABLE void addCode();
  Q_INVOKABLE void addLogoSet();
  // Lets the user pick a colour of the screen; undoable.
  Q_INVOKABLE void pickColorFromScreen();
  // Ask for files and import them.
  Q_INVOKABLE void importImages();
  Q_INVOKABLE void importVideos();
  Q_INVOKABLE void importFontFiles();

  // --- Entries of the options menu.
  Q_INVOKABLE void editEmblem();
  // The names of the formats in which `copyColors` can write the section's colours.
  Q_INVOKABLE static QStringList paletteFormats();
  Q_INVOKABLE void copyColors(const QString& format);
  Q_INVOKABLE void moveUp();
  Q_INVOKABLE void moveDown();
  Q_INVOKABLE void remove();

 signals:
  void changed();
  void placeChanged();

 private:
  void take(const Section& section, const QString& searchText);
  enum class Then { nothing, edit };
  void append(ItemPayload payload, Then then = Then::nothing);

  BrandWorkspace& workspace_;
  Section section_;
  ItemListModel items_;
  QString searchText_;
  std::optional<SearchableItems> searchable_;  // from the first search on, for as long as it holds
  bool hasColors_ = false;
  qsizetype place_ = 0;
  qsizetype last_ = 0;
};

}  // namespace tarnloft
