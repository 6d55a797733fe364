#pragma once

#include "document/Package.h"
#include "model/Json.h"
#include "testing/TestServices.h"

#include <QRandomGenerator>

#include <cstdlib>

namespace tarnloft {

// A package with eight pictures of random bytes, so many megabytes together. Gives its path.
inline QByteArray largePackage(const TestServices& disk, int megabytes) {
  constexpr int pictures = 8;
  const QString package = disk.path(QStringLiteral("Large.tarnloft"));
  Brand brand = Brand::create(QStringLiteral("Large"));
  QByteArray megabyte(1 << 20, Qt::Uninitialized);
  QDir().mkpath(Package::assetsPath(package));
  for (int i = 0; i < pictures; ++i) {
    const AssetRef asset{QStringLiteral("%1.png").arg(i), QStringLiteral("Poster.png")};
    QFile file(Package::assetsPath(package) + QLatin1Char('/') + asset.filename);
    if (!file.open(QIODevice::WriteOnly)) std::exit(1);
    for (int m = 0; m < megabytes / pictures; ++m) {
      QRandomGenerator::global()->fillRange(reinterpret_cast<quint32*>(megabyte.data()),
                                            megabyte.size() / qsizetype(sizeof(quint32)));
      file.write(megabyte);
    }
    brand.sections.first().items.append(Item::create(ImagePayload{asset, std::nullopt}));
  }
  if (!writeFile(Package::manifestPath(package), *encode(brand))) std::exit(1);
  return QFile::encodeName(package);
}

}  // namespace tarnloft
