#include "assets/AssetImport.h"

#include "document/BrandDocument.h"
#include "model/FileName.h"

#include <QCoreApplication>
#include <QPointer>

namespace tarnloft {
namespace {

// One call's files; lives until the last of them has come to its end. Main thread, but for the
// workers' reading of what it was made of.
class Arrivals {
 public:
  Arrivals(const ImportServices& services, AssetImport import, BrandDocument& document)
      : services_(services), import_(std::move(import)), document_(&document) {
    QStringList names;
    for (const QString& path : import_.paths) {
      names << lastPathComponent(path);
      work_.measure(path, services_.workers);
    }
    work_.begin(names);
  }

  const ImportServices& services() const { return services_; }
  const AssetImport& import() const { return import_; }
  Progress& progress() const { return work_.progress(); }

  void end(qsizetype file, const Result<AssetRef>& asset) {
    const QString name = lastPathComponent(import_.paths.at(file));
    if (!asset) {
      if (asset.error().kind != ErrorKind::cancelled) fail(name, asset.error().message);
    } else if (!document_) {
      fail(name, QStringLiteral("Its brand was closed while it was copied."));
    } else {
      import_.arrived(*asset);
    }
    if (file + 1 < import_.paths.size()) return;
    work_.end();
    if (!failed_.isEmpty() && services_.failed) services_.failed(failed_, reason_);
  }

 private:
  void fail(const QString& name, const QString& reason) {
    if (failed_.isEmpty()) reason_ = reason;
    failed_ << name;
  }

  const ImportServices services_;
  const AssetImport import_;
  const QPointer<BrandDocument> document_;
  ImportWork work_{services_.told};
  QStringList failed_;
  QString reason_;  // of the first one
};

// Worker.
Result<AssetRef> bringIn(const AssetFolder& folder, const QString& path, const AssetImport& import,
                         Progress& progress) {
  if (auto wanted = progress.advance(0); !wanted) return tl::unexpected(wanted.error());
  auto asset = folder.copyIn(path, progress);
  if (!asset || !import.read) return asset;
  if (const auto copy = folder.pathOf(*asset)) import.read(*copy);
  return asset;
}

}  // namespace

void importAssets(const ImportServices& services, const AssetImport& import,
                  BrandDocument& document) {
  const auto arrivals = std::make_shared<Arrivals>(services, import, document);
  document.openAssetFolder([arrivals](const Result<AssetFolder>& folder) {
    const auto each = [arrivals](const auto& end) {
      for (qsizetype i = 0; i < arrivals->import().paths.size(); ++i) end(i);
    };
    if (!folder) {
      return each([&](qsizetype i) { arrivals->end(i, tl::unexpected(folder.error())); });
    }
    arrivals->services().workers.start([arrivals, each, folder = *folder] {
      each([&](qsizetype i) {
        const QString& path = arrivals->import().paths.at(i);
        const auto asset = bringIn(folder, path, arrivals->import(), arrivals->progress());
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [arrivals, i, asset] { arrivals->end(i, asset); },
            Qt::QueuedConnection);
      });
    });
  });
}

}  // namespace tarnloft
