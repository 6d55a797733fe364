#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

class ContentModel;
class Tile;

// What the Edit menu does with what has the keyboard: with a field's text, else with the open
// brand's tiles. Main thread.
class EditCommands : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  // What had the keyboard last, outside of menus.
  Q_PROPERTY(QQuickItem* focused READ focused WRITE setFocused NOTIFY changed)
  Q_PROPERTY(bool canCut READ canCut NOTIFY changed)
  Q_PROPERTY(bool canCopy READ canCopy NOTIFY changed)
  Q_PROPERTY(bool canPaste READ canPaste NOTIFY changed)
  Q_PROPERTY(bool canDelete READ canDelete NOTIFY changed)
  Q_PROPERTY(bool canSelectAll READ canSelectAll NOTIFY changed)
  // Copying is what a click on the focused tile does.
  Q_PROPERTY(bool copiesTile READ copiesTile NOTIFY changed)

 public:
  // Borrowed: it outlives this.
  explicit EditCommands(const ContentModel& content, QObject* parent = nullptr);

  QQuickItem* focused() const { return focused_; }
  void setFocused(QQuickItem* item);

  bool canCut() const { return hasSelectedText() && !isReadOnly(); }
  bool canCopy() const { return hasSelectedText() || copiesTile(); }
  bool canPaste() const;
  bool canDelete() const;
  bool canSelectAll() const;
  bool copiesTile() const;

  // Their menu is about to show: texts, selections and the clipboard may have changed.
  Q_INVOKABLE void refresh() { emit changed(); }

  Q_INVOKABLE void cut();
  Q_INVOKABLE void copy();
  Q_INVOKABLE void paste();
  // Deletes the selected text, or the selected tiles.
  Q_INVOKABLE void remove();
  Q_INVOKABLE void selectAll();

 signals:
  void changed();

 private:
  bool isText() const;
  bool hasSelectedText() const;
  bool isReadOnly() const;
  Tile* tile() const;
  void tellText(const char* verb);

  const ContentModel& content_;
  QPointer<QQuickItem> focused_;
};

}  // namespace tarnloft
