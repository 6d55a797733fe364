#pragma once

#include "library/LibraryStore.h"
#include "updates/UpdaterViewModel.h"

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

  // Whether there are updates to be looked for at all, and whether just now.
  Q_PROPERTY(bool hasUpdater READ hasUpdater NOTIFY updaterChanged)
  Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY updaterChanged)

 public:
  // Borrowed: both outlive this. The updater may be null.
  explicit ShellCommands(LibraryStore& library, UpdaterViewModel* updater = nullptr,
                         QObject* parent = nullptr);

  bool hasSelection() const { return library_.selection().has_value(); }
  QString selectedBrand() const { return library_.selection().value_or(QString()); }

  bool hasUpdater() const { return updater_ && updater_->isThere(); }
  bool canCheckForUpdates() const { return updater_ && updater_->canCheckForUpdates(); }

  Q_INVOKABLE void newBrand() { library_.setNewBrandRequested(true); }
  Q_INVOKABLE void importBrand() { library_.importBrand(); }
  Q_INVOKABLE void exportBrand() { library_.exportSelectedBrand(); }
  // Nothing happens while no document is open.
  Q_INVOKABLE void exportBrandPage() { library_.exportOpenBrandPage(); }
  Q_INVOKABLE void openSettings() { emit settingsRequested(); }
  // What comes of it shows in the settings.
  Q_INVOKABLE void checkForUpdates() { emit updateCheckRequested(); }
  Q_INVOKABLE void pickColorFromScreen() { library_.pickColorFromScreen(); }

 signals:
  void hasSelectionChanged();
  void settingsRequested();
  void updaterChanged();
  void updateCheckRequested();

 private:
  LibraryStore& library_;
  UpdaterViewModel* const updater_;
};

}  // namespace tarnloft
