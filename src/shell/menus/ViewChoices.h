#pragma once

#include "library/LibraryPreferences.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// How the program looks, as its menus show and change it. Values are places in the lists of cases.
// Main thread.
class ViewChoices : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  Q_PROPERTY(int assetDisplayMode READ assetDisplayMode WRITE setAssetDisplayMode NOTIFY changed)
  Q_PROPERTY(int tileSize READ tileSize WRITE setTileSize NOTIFY changed)
  // Expanded assets have one size.
  Q_PROPERTY(bool sizesCount READ doSizesCount NOTIFY changed)
  Q_PROPERTY(int appearanceMode READ appearanceMode WRITE setAppearanceMode NOTIFY changed)

 public:
  // Borrowed: they outlive this.
  explicit ViewChoices(LibraryPreferences& preferences, QObject* parent = nullptr)
      : QObject(parent), preferences_(preferences) {
    using Kept = LibraryPreferences;
    connect(&preferences, &Kept::assetDisplayModeChanged, this, &ViewChoices::changed);
    connect(&preferences, &Kept::tileSizeChanged, this, &ViewChoices::changed);
    connect(&preferences, &Kept::appearanceModeChanged, this, &ViewChoices::changed);
  }

  int assetDisplayMode() const { return int(preferences_.assetDisplayMode()); }
  void setAssetDisplayMode(int mode) { preferences_.setAssetDisplayMode(AssetDisplayMode(mode)); }
  int tileSize() const { return int(preferences_.tileSize()); }
  void setTileSize(int size) { preferences_.setTileSize(TileSize(size)); }
  bool doSizesCount() const { return preferences_.assetDisplayMode() == AssetDisplayMode::compact; }
  int appearanceMode() const { return int(preferences_.appearanceMode()); }
  void setAppearanceMode(int mode) { preferences_.setAppearanceMode(AppearanceMode(mode)); }

 signals:
  void changed();

 private:
  LibraryPreferences& preferences_;
};

}  // namespace tarnloft
