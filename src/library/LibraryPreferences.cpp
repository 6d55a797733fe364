#include "library/LibraryPreferences.h"

#include "model/Uuid.h"

namespace tarnloft {
namespace {

namespace keys {
const auto defaultAccentHex = QLatin1String("defaultAccentHex");
const auto defaultAccentHexDark = QLatin1String("defaultAccentHexDark");
const auto appearanceMode = QLatin1String("appearanceMode");
const auto brandOrder = QLatin1String("brandOrder");
const auto tileSize = QLatin1String("tileSize");
const auto colorCopyFormat = QLatin1String("colorCopyFormat");
const auto assetDisplayMode = QLatin1String("assetDisplayMode");
const auto lastExportFormat = QLatin1String("lastExportFormat");
const auto lastExportQuality = QLatin1String("lastExportQuality");
const auto libraryPath = QLatin1String("libraryPath");
}  // namespace keys

template <TabledEnum E>
E readCase(const Preferences& store, QLatin1String key, E fallback) {
  const auto text = store.text(key);
  return text ? fromRawValue<E>(text->toStdString()).value_or(fallback) : fallback;
}

template <TabledEnum E>
void writeCase(Preferences& store, QLatin1String key, E value) {
  const std::string_view text = rawValue(value);
  store.setText(key, QString::fromLatin1(text.data(), qsizetype(text.size())));
}

QList<QUuid> readOrder(const Preferences& store) {
  QList<QUuid> order;
  for (const QString& text : store.texts(keys::brandOrder)) {
    if (const auto id = uuidFromText(text.toStdString())) order << *id;
  }
  return order;
}

}  // namespace

double tileHeight(TileSize size) {
  switch (size) {
    case TileSize::small: return 74;
    case TileSize::medium: return 96;
    case TileSize::large: return 128;
  }
  Q_UNREACHABLE();
}

QString symbol(TileSize size) {
  switch (size) {
    case TileSize::small: return QStringLiteral("square.grid.3x3");
    case TileSize::medium: return QStringLiteral("square.grid.2x2");
    case TileSize::large: return QStringLiteral("square");
  }
  Q_UNREACHABLE();
}

LibraryPreferences::LibraryPreferences(Preferences& store)
    : store_(store),
      defaultAccentHex_(store.text(keys::defaultAccentHex).value_or(QStringLiteral("#0A84FF"))),
      defaultAccentHexDark_(store.text(keys::defaultAccentHexDark)),
      appearanceMode_(readCase(store, keys::appearanceMode, AppearanceMode::system)),
      tileSize_(readCase(store, keys::tileSize, TileSize::medium)),
      colorCopyFormat_(readCase(store, keys::colorCopyFormat, ColorCopyFormat::hex)),
      assetDisplayMode_(readCase(store, keys::assetDisplayMode, AssetDisplayMode::compact)),
      lastExportFormat_(readCase(store, keys::lastExportFormat, ExportFormat::png)),
      lastExportQuality_(store.number(keys::lastExportQuality).value_or(0.85)),
      brandOrder_(readOrder(store)) {}

std::optional<QString> LibraryPreferences::libraryPath() const {
  return store_.text(keys::libraryPath);
}

void LibraryPreferences::setDefaultAccentHex(const QString& hex) {
  defaultAccentHex_ = hex;
  store_.setText(keys::defaultAccentHex, hex);
  emit defaultAccentHexChanged();
}

void LibraryPreferences::setDefaultAccentHexDark(const std::optional<QString>& hex) {
  defaultAccentHexDark_ = hex;
  hex ? store_.setText(keys::defaultAccentHexDark, *hex)
      : store_.remove(keys::defaultAccentHexDark);
  emit defaultAccentHexDarkChanged();
}

void LibraryPreferences::setAppearanceMode(AppearanceMode mode) {
  writeCase(store_, keys::appearanceMode, appearanceMode_ = mode);
  emit appearanceModeChanged();
}

void LibraryPreferences::setTileSize(TileSize size) {
  writeCase(store_, keys::tileSize, tileSize_ = size);
  emit tileSizeChanged();
}

void LibraryPreferences::setColorCopyFormat(ColorCopyFormat format) {
  writeCase(store_, keys::colorCopyFormat, colorCopyFormat_ = format);
  emit colorCopyFormatChanged();
}

void LibraryPreferences::setAssetDisplayMode(AssetDisplayMode mode) {
  writeCase(store_, keys::assetDisplayMode, assetDisplayMode_ = mode);
  emit assetDisplayModeChanged();
}

void LibraryPreferences::setLastExportFormat(ExportFormat format) {
  writeCase(store_, keys::lastExportFormat, lastExportFormat_ = format);
  emit lastExportFormatChanged();
}

void LibraryPreferences::setLastExportQuality(double quality) {
  lastExportQuality_ = quality;
  store_.setNumber(keys::lastExportQuality, quality);
  emit lastExportQualityChanged();
}

void LibraryPreferences::setBrandOrder(const QList<QUuid>& order) {
  brandOrder_ = order;
  QStringList texts;
  for (const QUuid& id : order) texts << canonicalString(id);
  store_.setTexts(keys::brandOrder, texts);
}

void LibraryPreferences::setLibraryPath(const QString& path) {
  store_.setText(keys::libraryPath, path);
}

}  // namespace tarnloft
