#pragma once

#include "platform/SystemUpdater.h"
#include "platform/desktop/updates/PackageTransaction.h"

#include <QFileSystemWatcher>

#include <memory>

namespace tarnloft {

// Updates through PackageKit, which fetches and checks packages as the system's sources say and
// asks for passwords by itself.
class PackageKitUpdater : public QObject, public SystemUpdater {
 public:
  // The bus on which the service is, made when it is first needed; and the name of the package
  // that holds this program, empty for none.
  PackageKitUpdater(std::function<QDBusConnection()> bus, QString package,
                    std::chrono::milliseconds patience = std::chrono::minutes(5));
  ~PackageKitUpdater() override;
  Q_DISABLE_COPY_MOVE(PackageKitUpdater)

  void look(std::function<void()> isThere) override;
  void check(Asker asker, Found found) override;
  void download(const Update& update, Progress progress, Ended ended) override;
  void install(const Update& update, Asker asker, Progress progress, Ended ended) override;
  void cancel() override;
  bool isReplaced() const override;
  void watch(std::function<void()> replaced) override;

 private:
  void askBus(const QString& method, const std::function<void()>& isThere);
  PackageTransaction& begin(const QString& method, const QVariantList& arguments, Asker asker,
                            Ended ended);
  void findUpdate(Asker asker, const Result<void>& refreshed, Found found);
  void describe(const QString& id, Found found);
  void update(quint64 flags, const Update& update, Asker asker, Progress progress, Ended ended);

  const std::function<QDBusConnection()> bus_;
  const QString package_;
  const std::chrono::milliseconds patience_;
  std::unique_ptr<PackageTransaction> transaction_;
  bool isFound_ = false;
  QFileSystemWatcher program_;
};

}  // namespace tarnloft
