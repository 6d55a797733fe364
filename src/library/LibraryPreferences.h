#pragma once

#include "model/EnumTable.h"
#include "model/ExportFormat.h"
#include "platform/Preferences.h"
#include "publish/ColorUtil.h"

#include <QList>
#include <QObject>
#include <QUuid>

namespace tarnloft {

enum class TileSize { small, medium, large };
enum class AssetDisplayMode { compact, expanded };
enum class AppearanceMode { system, light, dark };

template <>
struct EnumTable<TileSize> {
  static constexpr std::array cases{EnumCase<TileSize>{TileSize::small, "small"},
                                    EnumCase<TileSize>{TileSize::medium, "medium"},
                                    EnumCase<TileSize>{TileSize::large, "large"}};
};

template <>
struct EnumTable<AssetDisplayMode> {
  static constexpr std::array cases{
      EnumCase<AssetDisplayMode>{AssetDisplayMode::compact, "compact"},
      EnumCase<AssetDisplayMode>{AssetDisplayMode::expanded, "expanded"}};
};

template <>
struct EnumTable<AppearanceMode> {
  static constexpr std::array cases{EnumCase<AppearanceMode>{AppearanceMode::system, "system"},
                                    EnumCase<AppearanceMode>{AppearanceMode::light, "light"},
                                    EnumCase<AppearanceMode>{AppearanceMode::dark, "dark"}};
};

// Height of a tile in points, and the name of the size's symbol.
double tileHeight(TileSize size);
QString symbol(TileSize size);

// The library's preferences in memory, each read once; a value that can't be understood yields the
// default. Each setter writes at once and tells observers.
class LibraryPreferences : public QObject {
  Q_OBJECT

 public:
  explicit LibraryPreferences(Preferences& store);

  const QString& defaultAccentHex() const { return defaultAccentHex_; }
  const std::optional<QString>& defaultAccentHexDark() const { return defaultAccentHexDark_; }
  AppearanceMode appearanceMode() const { return appearanceMode_; }
  TileSize tileSize() const { return tileSize_; }
  ColorCopyFormat colorCopyFormat() const { return colorCopyFormat_; }
  AssetDisplayMode assetDisplayMode() const { return assetDisplayMode_; }
  ExportFormat lastExportFormat() const { return lastExportFormat_; }
  double lastExportQuality() const { return lastExportQuality_; }
  const QList<QUuid>& brandOrder() const { return brandOrder_; }
  // None if the user never chose a folder.
  std::optional<QString> libraryPath() const;

  void setDefaultAccentHex(const QString& hex);
  void setDefaultAccentHexDark(const std::optional<QString>& hex);
  void setAppearanceMode(AppearanceMode mode);
  void setTileSize(TileSize size);
  void setColorCopyFormat(ColorCopyFormat format);
  void setAssetDisplayMode(AssetDisplayMode mode);
  void setLastExportFormat(ExportFormat format);
  void setLastExportQuality(double quality);
  void setBrandOrder(const QList<QUuid>& order);
  void setLibraryPath(const QString& path);

 signals:
  void defaultAccentHexChanged();
  void defaultAccentHexDarkChanged();
  void appearanceModeChanged();
  void tileSizeChanged();
  void colorCopyFormatChanged();
  void assetDisplayModeChanged();
  void lastExportFormatChanged();
  void lastExportQualityChanged();

 private:
  Preferences& store_;
  QString defaultAccentHex_;
  std::optional<QString> defaultAccentHexDark_;
  AppearanceMode appearanceMode_;
  TileSize tileSize_;
  ColorCopyFormat colorCopyFormat_;
  AssetDisplayMode assetDisplayMode_;
  ExportFormat lastExportFormat_;
  double lastExportQuality_;
  QList<QUuid> brandOrder_;
};

}  // namespace tarnloft
