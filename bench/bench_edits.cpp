// One keystroke in a section's name, and one in an item's text, with all that follows in the
// window's models: in a brand of 60 sections and 10,000 items beside 200 brands, and in one of 1
// section and 20 items alone.
#include "Ratio.h"
#include "shell/TestShell.h"
#include "workspace/Items.h"
#include "workspace/tiles/Tile.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QSignalSpy>

#include <algorithm>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>

using namespace tarnloft;

namespace {

int fileCalls = 0;  // by anybody in this process

template <class Function>
Function next(Function /*here*/, const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// In the place of the system library's, which they call.
extern "C" {
int openat(int folder, const char* path, int flags, ...) {
  ++fileCalls;
  return next(&openat, "openat")(folder, path, flags, 0666);
}
int open(const char* path, int flags, ...) {
  ++fileCalls;
  return next(&open, "open")(path, flags, 0666);
}
int open64(const char* path, int flags, ...) {
  ++fileCalls;
  return next(&open64, "open64")(path, flags, 0666);
}
int stat(const char* path, struct stat* result) noexcept {
  ++fileCalls;
  return next(&stat, "stat")(path, result);
}
int lstat(const char* path, struct stat* result) noexcept {
  ++fileCalls;
  return next(&lstat, "lstat")(path, result);
}
int fstatat(int folder, const char* path, struct stat* result, int flags) noexcept {
  ++fileCalls;
  return next(&fstatat, "fstatat")(folder, path, result, flags);
}
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* result) noexcept {
  ++fileCalls;
  return next(&statx, "statx")(folder, path, flags, mask, result);
}
}

namespace {

struct Size {
  int brands;
  int sections;
  int items;  // in all
};

struct Keystroke {
  double microseconds;
  int fileCalls;
  int sectionsTold;  // of a change
};

class Editing {
 public:
  explicit Editing(const Size& size) {
    QList<Section> sections;
    for (int i = 0; i < size.sections; ++i) {
      Section section = Section::create("Section " + QString::number(i));
      for (int item = i; item < size.items; item += size.sections) {
        section.items.append(item % 2 ? textItem("Text") : colorItem("Color"));
      }
      section.items.append(textItem("Edited"));
      sections << section;
    }
    test_.library.add("A", sections);
    for (int i = 1; i < size.brands; ++i) test_.library.add("Brand " + QString::number(i));
    test_.library.start();
    content_ = test_.makeContent();
    QCoreApplication::processEvents();
    for (const auto& model : content_->workspace()->sections()->models()) {
      QObject::connect(model.get(), &SectionModel::changed, [this] { ++told_; });
    }
  }

  // The median of many, each with what it sets off in later turns of the event loop.
  Keystroke inName() {
    return median([&](const QString& text) { middle().rename(text); });
  }
  Keystroke inText() {
    const SharedList<Item>& items = middle().items()->items();
    Tile tile(middle(), items.at(items.size() - 1));
    return median([&](const QString& text) {
      tile.block()->setText(text);
      QCoreApplication::processEvents();
      tile.setItem(items.at(items.size() - 1));
    });
  }

 private:
  SectionModel& middle() {
    const auto& models = content_->workspace()->sections()->models();
    return *models[models.size() / 2];
  }

  template <class Edit>
  Keystroke median(Edit&& edit) {
    constexpr int keystrokes = 301;
    std::vector<double> times;
    Keystroke most{};
    for (int i = 0; i < keystrokes; ++i) {
      const QString text = "Typed " + QString::number(i);
      told_ = 0;
      const int callsBefore = fileCalls;
      QElapsedTimer clock;
      clock.start();
      edit(text);
      QCoreApplication::processEvents();
      times.push_back(double(clock.nsecsElapsed()) / 1e3);
      most.fileCalls = std::max(most.fileCalls, fileCalls - callsBefore);
      most.sectionsTold = std::max(most.sectionsTold, told_);
    }
    std::sort(times.begin(), times.end());
    most.microseconds = times.at(times.size() / 2);
    return most;
  }

  TestShell test_;
  std::unique_ptr<ContentModel> content_;
  int told_ = 0;
};

void compare(const char* where, const Keystroke& small, const Keystroke& large) {
  std::printf(
      "one keystroke in %s: %.1f µs, %.1f µs in the large brand; files opened or asked for: %d "
      "(aim: 0); sections told: %d (aim: 1)\n",
      where, small.microseconds, large.microseconds, large.fileCalls, large.sectionsTold);
  const QByteArray row = QByteArray("a keystroke in ") + where + ", large brand / small brand";
  printRatio(row.constData(), large.microseconds / small.microseconds, Aim::atMost, 3);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  Editing small({1, 1, 20}), large({200, 60, 10000});
  compare("a section's name", small.inName(), large.inName());
  compare("an item's text", small.inText(), large.inText());
  return 0;
}
