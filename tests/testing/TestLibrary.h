#pragma once

#include "document/Package.h"
#include "library/LibraryStore.h"
#include "model/Json.h"
#include "platform/desktop/archives/ZipArchiver.h"
#include "platform/desktop/system/IniPreferences.h"
#include "testing/FakeDialogs.h"
#include "testing/TestServices.h"

namespace tarnloft {

class ListedAppearance : public Appearance {
 public:
  QList<AppearanceOverride> set;
  void setOverride(AppearanceOverride value) override { set << value; }
};

class CountingBeep : public Beep {
 public:
  int count = 0;
  void sound() override { ++count; }
};

// Answers a pick when the test says so.
class ScriptedSampler : public ColorSampler {
 public:
  explicit ScriptedSampler(std::function<void(std::optional<SampledColor>)>& pending)
      : pending_(pending) {}
  void show(std::function<void(std::optional<SampledColor>)> done) override {
    pending_ = std::move(done);
  }

 private:
  std::function<void(std::optional<SampledColor>)>& pending_;
};

// Puts what is thrown away into a folder of the test's.
class FolderTrash : public Trash {
 public:
  explicit FolderTrash(const QString& folder) : folder_(folder) { QDir().mkpath(folder); }
  bool works = true;
  Result<void> moveToTrash(const QString& path) override {
    const bool moved = works && QDir().rename(path, folder_ + '/' + QFileInfo(path).fileName());
    return moved ? Result<void>() : failure(ErrorKind::io, "no trash");
  }

 private:
  QString folder_;
};

// A library folder on the real disk, with its preferences in a real file.
struct TestLibrary {
  TestServices disk;
  FileStore* files = &disk.files;     // a test may put a faulty one in
  DiskWork* work = &immediateDisk();  // or a slow one
  IniPreferences preferences{disk.path("tarnloft.ini"), disk.log};
  ListedAppearance appearance;
  CountingBeep beep;
  FolderTrash trash{disk.path("trash")};
  ZipArchiver archiver;
  ScriptedDialogs dialogs;
  ListedViewer viewer;
  std::function<void(std::optional<SampledColor>)> pendingPick;
  QString folder = disk.path("Tarn Loft/Library");
  QString openingFile;  // empty: none of its starts follows a crash
  std::unique_ptr<LibraryStore> store;

  LibraryServices services() {
    return {{*files, disk.log, [this] { return disk.now; }, *work},
            preferences,
            appearance,
            beep,
            trash,
            archiver,
            dialogs,
            viewer,
            [this] { return std::make_unique<ScriptedSampler>(pendingPick); },
            disk.folder.path(),
            disk.path("tmp"),
            immediateDisk(),
            immediateDisk(),
            openingFile};
  }
  // Starts the library anew, as a new run of the program would.
  LibraryStore& start() {
    store.reset();
    store = std::make_unique<LibraryStore>(services());
    return *store;
  }
  QString packagePath(const QString& name) const { return folder + '/' + name + ".tarnloft"; }

  // Puts a package on disk behind the program's back.
  Brand add(const QString& name, const QList<Section>& sections = {}) {
    Brand brand = Brand::create(name);
    if (!sections.isEmpty()) brand.sections = sections;
    save(name, brand);
    return brand;
  }
  void save(const QString& name, const Brand& brand) {
    writeFile(Package::manifestPath(packagePath(name)), *encode(brand));
  }
  QStringList names() const {
    QStringList result;
    for (const BrandSummary& row : store->brands()) result << row.name;
    return result;
  }
};

}  // namespace tarnloft
