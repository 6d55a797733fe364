#include "entry/late/LateServices.h"

#include "entry/late/ModuleLoading.h"
#include "platform/desktop/system/ProgramFile.h"

namespace tarnloft {
namespace {

// A local static is made once, whichever thread comes first.
Archiver* archiver() {
  static Archiver* const loaded =
      fromModule<Archiver>("libtarnloft-archives.so", "tarnloftArchiver");
  return loaded;
}

ClipPlayers* clipPlayers() {
  static ClipPlayers* const loaded =
      fromModule<ClipPlayers>("libtarnloft-players.so", "tarnloftClipPlayers");
  return loaded;
}

// Stands for one that can't be made.
class NoClipPlayer : public ClipPlayer {
 public:
  void play() override {}
  void pause() override {}
  void seek(double) override {}
  void step(Step) override {}
  void setVolume(double) override {}
  void setRoom(QSize) override {}
  ClipStatus status() const override { return {.state = ClipStatus::State::broken}; }
  QImage picture() const override { return {}; }
};

Trash* trash() {
  static Trash* const loaded = fromModule<Trash>("libtarnloft-trash.so", "tarnloftTrash");
  return loaded;
}

tl::unexpected<Error> cannotLoad(const char* what) {
  if (isProgramReplaced()) {
    return failure(ErrorKind::io,
                   QStringLiteral("A new version of Tarn Loft is installed. Relaunch it first"));
  }
  return failure(ErrorKind::io,
                 QStringLiteral("The library of %1 can't be loaded").arg(QLatin1String(what)));
}

tl::unexpected<Error> noArchives() { return cannotLoad("archives"); }

}  // namespace

Result<void> LateArchiver::archive(const QString& folder, FileWriter& target, Progress& progress) {
  return archiver() ? archiver()->archive(folder, target, progress) : noArchives();
}

Result<void> LateArchiver::extract(const QString& archive, const QString& folder,
                                   Progress& progress) {
  return archiver() ? archiver()->extract(archive, folder, progress) : noArchives();
}

std::unique_ptr<ClipPlayer> LateClipPlayers::open(const ClipSource& source,
                                                  std::function<void()> changed) {
  isUsed_ = true;
  if (clipPlayers()) return clipPlayers()->open(source, std::move(changed));
  return std::make_unique<NoClipPlayer>();
}

bool LateClipPlayers::finish(std::chrono::milliseconds patience) {
  return !isUsed_ || !clipPlayers() || clipPlayers()->finish(patience);
}

Result<void> LateTrash::moveToTrash(const QString& path) {
  if (trash()) return trash()->moveToTrash(path);
  return cannotLoad("the trash");
}

}  // namespace tarnloft
