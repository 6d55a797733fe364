#pragma once

#include "pictures/GradientView.h"
#include "workspace/page/SectionModel.h"

#include <QImage>
#include <QPointF>
#include <QPointer>

class QQuickItem;

namespace tarnloft {

// One item on screen, a tile or a block of text: what its view shows and what its view does. A view
// that scrolls out of sight is given another item. Main thread.
class Tile : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the grid")
  Q_PROPERTY(tarnloft::BrandWorkspace* workspace READ workspace CONSTANT)
  Q_PROPERTY(tarnloft::SectionModel* section READ section CONSTANT)
  Q_PROPERTY(tarnloft::TileKind::Kind kind READ kind NOTIFY changed)
  Q_PROPERTY(QString name READ name NOTIFY changed)
  Q_PROPERTY(QString subcaption READ subcaption NOTIFY changed)
  Q_PROPERTY(QString help READ help NOTIFY changed)
  Q_PROPERTY(QString description READ description NOTIFY changed)
  Q_PROPERTY(bool hasNotes READ hasNotes NOTIFY changed)
  // Of a colour; gray for one that doesn't parse.
  Q_PROPERTY(QColor color READ color NOTIFY changed)
  // What is put on that colour: black, white, or empty for the interface's own.
  Q_PROPERTY(QString ink READ ink NOTIFY changed)
  Q_PROPERTY(tarnloft::GradientLook gradient READ gradient NOTIFY changed)
  // Of an image, a logo set's primary variant or a clip; empty if there is none, and for one that
  // leads out of the package.
  Q_PROPERTY(QString path READ path NOTIFY changed)
  // It is an image or a logo set with a file.
  Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY changed)
  Q_PROPERTY(int variantCount READ variantCount NOTIFY changed)  // of a logo set
  Q_PROPERTY(tarnloft::TileKind::Backdrop backdrop READ backdrop NOTIFY changed)
  Q_PROPERTY(QString failureHelp READ failureHelp NOTIFY changed)
  Q_PROPERTY(QString fontFamily READ fontFamily NOTIFY changed)
  Q_PROPERTY(QString snippet READ snippet NOTIFY changed)  // no more of it than a card can show
  Q_PROPERTY(QString text READ text NOTIFY changed)        // of a block
  Q_PROPERTY(int level READ level NOTIFY changed)          // of a heading
  Q_PROPERTY(bool selected READ isSelected NOTIFY selectionChanged)
  Q_PROPERTY(bool sectionSelected READ isSectionSelected NOTIFY selectionChanged)
  Q_PROPERTY(bool dragged READ isDragged NOTIFY draggedChanged)

 public:
  // The section and its workspace outlive it.
  Tile(SectionModel& section, const Item& item);

  const Item& item() const { return item_; }
  void setItem(const Item& item);

  BrandWorkspace* workspace() const { return section_.workspace(); }
  SectionModel* section() const { return &section_; }
  TileKind::Kind kind() const { return TileFacts::kind(item_); }
  QString name() const { return item_.displayName(); }
  QString subcaption() const { return TileFacts::subcaption(item_).value_or(QString()); }
  QString help() const { return TileFacts::helpText(item_); }
  QString description() const { return TileFacts::accessibilityDescription(item_); }
  bool hasNotes() const { return !item_.usageNotes().isEmpty(); }
  QColor color() const;
  QString ink() const;
  GradientLook gradient() const;
  QString path() const;
  bool hasPicture() const { return TileFacts::picture(item_).has_value(); }
  int variantCount() const;
  TileKind::Backdrop backdrop() const { return TileFacts::backdrop(item_); }
  QString failureHelp() const;
  QString fontFamily() const;
  QString snippet() const;
  QString text() const { return item_.displayName(); }
  int level() const;
  bool isSelected() const;
  bool isSectionSelected() const;

  // A click with those keys held down.
  Q_INVOKABLE void click(int modifiers = Qt::NoModifier);
  Q_INVOKABLE void toggleSelected();
  // Drags the item under what was grabbed of its view, cut to corners of that radius, made smaller
  // and beside the pointer, so that the place of the drop is seen. Returns when the drag has ended.
  Q_INVOKABLE void drag(QQuickItem* view, const QImage& grabbed = {}, qreal radius = 0);
  bool isDragged() const { return isDragged_; }

  // --- Of a block
  Q_INVOKABLE void setText(const QString& text);
  Q_INVOKABLE void remove();

 signals:
  void changed();
  void selectionChanged();
  void draggedChanged();

 private:
  void setDragged(bool dragged);

  SectionModel& section_;
  Item item_;
  bool isDragged_ = false;
};

}  // namespace tarnloft
