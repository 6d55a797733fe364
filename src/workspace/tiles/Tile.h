#pragma once

#include "model/ShownText.h"
#include "workspace/page/SectionModel.h"
#include "workspace/tiles/facets/BlockFacet.h"
#include "workspace/tiles/facets/ClipFacet.h"
#include "workspace/tiles/facets/CodeFacet.h"
#include "workspace/tiles/facets/ColorFacet.h"
#include "workspace/tiles/facets/FontFacet.h"
#include "workspace/tiles/facets/GradientFacet.h"
#include "workspace/tiles/facets/LogoFacet.h"

#include <QImage>
#include <QPointF>
#include <QPointer>

class QQuickItem;

namespace tarnloft {

// One item on screen, a tile or a block of text: what every view shows and does, and in its facet
// what those of its kind do. A view that scrolls out of sight is given another item of its kind.
// Main thread.
class Tile : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the grid")
  Q_PROPERTY(tarnloft::BrandWorkspace* workspace READ workspace CONSTANT)
  Q_PROPERTY(tarnloft::SectionModel* section READ section CONSTANT)
  Q_PROPERTY(tarnloft::TileKind::Kind kind READ kind CONSTANT)
  Q_PROPERTY(QString name READ name NOTIFY changed)
  Q_PROPERTY(QString subcaption READ subcaption NOTIFY changed)
  Q_PROPERTY(QString help READ help NOTIFY changed)
  Q_PROPERTY(QString description READ description NOTIFY changed)
  Q_PROPERTY(bool hasNotes READ hasNotes NOTIFY changed)
  Q_PROPERTY(bool selected READ isSelected NOTIFY selectionChanged)
  Q_PROPERTY(bool sectionSelected READ isSectionSelected NOTIFY selectionChanged)
  Q_PROPERTY(bool dragged READ isDragged NOTIFY draggedChanged)
  Q_PROPERTY(bool menuOpen MEMBER isMenuOpen_ NOTIFY menuOpenChanged)
  // The facet of its kind; the others are null. That of a logo set is a picture's too.
  Q_PROPERTY(tarnloft::BlockFacet* block READ block CONSTANT)
  Q_PROPERTY(tarnloft::ColorFacet* swatch READ swatch CONSTANT)
  Q_PROPERTY(tarnloft::GradientFacet* gradient READ gradient CONSTANT)
  Q_PROPERTY(tarnloft::PictureFacet* picture READ picture CONSTANT)
  Q_PROPERTY(tarnloft::LogoFacet* logo READ logo CONSTANT)
  Q_PROPERTY(tarnloft::ClipFacet* clip READ clip CONSTANT)
  Q_PROPERTY(tarnloft::FontFacet* font READ font CONSTANT)
  Q_PROPERTY(tarnloft::CodeFacet* code READ code CONSTANT)

 public:
  // The section and its workspace outlive it.
  Tile(SectionModel& section, const Item& item);

  const Item& item() const { return item_; }
  // Of the same kind.
  void setItem(const Item& item);

  BrandWorkspace* workspace() const { return section_.workspace(); }
  SectionModel* section() const { return &section_; }
  TileKind::Kind kind() const { return TileFacts::kind(item_); }
  QString name() const { return shownText(item_.displayName()); }
  QString subcaption() const { return TileFacts::subcaption(item_).value_or(QString()); }
  QString help() const { return TileFacts::helpText(item_); }
  QString description() const { return TileFacts::accessibilityDescription(item_); }
  bool hasNotes() const { return !item_.usageNotes().isEmpty(); }
  bool isSelected() const;
  bool isSectionSelected() const;
  BlockFacet* block() const { return facet<BlockFacet>(); }
  ColorFacet* swatch() const { return facet<ColorFacet>(); }
  GradientFacet* gradient() const { return facet<GradientFacet>(); }
  PictureFacet* picture() const { return facet<PictureFacet>(); }
  LogoFacet* logo() const { return facet<LogoFacet>(); }
  ClipFacet* clip() const { return facet<ClipFacet>(); }
  FontFacet* font() const { return facet<FontFacet>(); }
  CodeFacet* code() const { return facet<CodeFacet>(); }

  // A click with those keys held down.
  Q_INVOKABLE void click(int modifiers = Qt::NoModifier);
  // The second click of two, told after it as a click of its own.
  Q_INVOKABLE void doubleClick(int modifiers = Qt::NoModifier);
  Q_INVOKABLE void toggleSelected();
  // Drags the item under what was grabbed of its view, cut to corners of that radius, made smaller
  // and beside the pointer, so that the place of the drop is seen. Returns when the drag has ended.
  Q_INVOKABLE void drag(QQuickItem* view, const QImage& grabbed = {}, qreal radius = 0);
  bool isDragged() const { return isDragged_; }
  bool isMenuOpen() const { return isMenuOpen_; }

  // Of its context menu, as a list of MenuEntry.
  Q_INVOKABLE QVariantList menuEntries() const;

 signals:
  void changed();
  void selectionChanged();
  void draggedChanged();
  void menuOpenChanged();

 private:
  template <class Facet>
  Facet* facet() const {
    return qobject_cast<Facet*>(facet_.get());
  }
  void setDragged(bool dragged);

  SectionModel& section_;
  Item item_;
  const std::unique_ptr<TileFacet> facet_;
  bool isDragged_ = false;
  bool isMenuOpen_ = false;
};

}  // namespace tarnloft
