#pragma once

#include "document/Package.h"
#include "model/Json.h"
#include "testing/TestServices.h"

#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace tarnloft {

[[noreturn]] inline void stop(const char* reason) {
  std::fprintf(stderr, "%s\n", reason);
  std::exit(1);
}

// The user's folders of a moment, with copies of the sample brand as the library.
struct Home {
  QTemporaryDir folder;

  QString path(const QString& name) const { return folder.filePath(name); }

  void addBrands(int count) const {
    const QString sample = QStringLiteral(SAMPLE_PACKAGE);
    const auto brand = decode<Brand>(contentOf(Package::manifestPath(sample)));
    if (!brand) stop("the sample brand can't be read");
    const QStringList assets = QDir(Package::assetsPath(sample)).entryList(QDir::Files);
    for (int i = 0; i < count; ++i) {
      Brand copy = *brand;
      copy.id = QUuid::createUuid();
      copy.name = QStringLiteral("Brand %1").arg(i, 3, 10, QLatin1Char('0'));
      const QString package =
          path(QStringLiteral("share/Tarn Loft/Library/%1.tarnloft").arg(copy.name));
      if (!writeFile(Package::manifestPath(package), *encode(copy))) stop("no room for brands");
      QDir().mkpath(Package::assetsPath(package));
      for (const QString& name : assets) {
        QFile::copy(Package::assetsPath(sample) + QLatin1Char('/') + name,
                    Package::assetsPath(package) + QLatin1Char('/') + name);
      }
    }
  }

  QProcessEnvironment environment() const {
    QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
    const auto own = [&](const char* variable, const char* name) {
      QDir().mkpath(path(QLatin1String(name)));
      result.insert(QLatin1String(variable), path(QLatin1String(name)));
    };
    own("XDG_DATA_HOME", "share");
    own("XDG_CONFIG_HOME", "config");
    own("XDG_STATE_HOME", "state");
    own("XDG_RUNTIME_DIR", "runtime");
    QFile::setPermissions(path(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    result.insert(QStringLiteral("HOME"), folder.path());
    result.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
    return result;
  }
};

}  // namespace tarnloft
