#pragma once

#include "library/LibraryStore.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// What the window's menus carry out on the library.
class ShellCommands : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  // What the entries that work on the selected brand are enabled by.
  Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY hasSelectionChanged)
  // The path of its package; empty for none.
  Q_PROPERTY(QString selectedBrand READ selectedBrand NOTIFY hasSelectionChanged)

 public:
  // Borrowed: it outlives this.
  explicit ShellCommands(LibraryStore& library, QObject* parent = nullptr);

  bool hasSelection() const { return library_.selection().has_value(); }
  QString selectedBrand() const { return library_.selection().value_or(QString()); }

  Q_INVOKABLE void newBrand() { library_.setNewBrandRequested(true); }
  Q_INVOKABLE void importBrand() { library_.importBrand(); }
  Q_INVOKABLE void exportBrand() { library_.exportSelectedBrand(); }
  // Nothing happens while no document is open.
  Q_INVOKABLE void exportBrandPage() { library_.exportOpenBrandPage(); }
  Q_INVOKABLE void openSettings() { emit settingsRequested(); }
  Q_INVOKABLE void pickColorFromScreen() { library_.pickColorFromScreen(); }

 signals:
  void hasSelectionChanged();
  void settingsRequested();

 private:
  LibraryStore& library_;
};

}  // namespace tarnloft
