// From the start of the process to its first frame: the program with 200 brands beside the smallest
// window with one control, both on the offscreen platform with software rendering.
#include "Ratio.h"
#include "document/Package.h"
#include "model/Json.h"
#include "testing/TestServices.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdlib>
#include <vector>

using namespace tarnloft;

namespace {

constexpr int brandCount = 200;

[[noreturn]] void stop(const char* reason) {
  std::fprintf(stderr, "bench_start: %s\n", reason);
  std::exit(1);
}

// The user's folders of a moment, with copies of the sample brand as the library.
struct Home {
  QTemporaryDir folder;

  QString path(const QString& name) const { return folder.filePath(name); }

  void addBrands() const {
    const QString sample = QStringLiteral(SAMPLE_PACKAGE);
    const auto brand = decode<Brand>(contentOf(Package::manifestPath(sample)));
    if (!brand) stop("the sample brand can't be read");
    const QStringList assets = QDir(Package::assetsPath(sample)).entryList(QDir::Files);
    for (int i = 0; i < brandCount; ++i) {
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
    result.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    result.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
    // The toolkit itself then tells of each frame that it has shown.
    result.insert(QStringLiteral("QT_LOGGING_RULES"),
                  QStringLiteral("qt.scenegraph.time.renderloop=true"));
    return result;
  }
};

// Seconds from the start of the process to its first frame. The process is ended behind it.
double firstFrame(const QString& program, const Home& home) {
  QProcess process;
  process.setProcessEnvironment(home.environment());
  process.setReadChannel(QProcess::StandardError);
  QElapsedTimer clock;
  clock.start();
  process.start(program, QStringList());
  QByteArray output;
  while (!output.contains("rendered")) {
    if (!process.waitForReadyRead(30'000)) stop("a program showed no frame");
    output += process.readAllStandardError();
  }
  const double seconds = double(clock.nsecsElapsed()) / 1e9;
  process.kill();
  process.waitForFinished();
  return seconds;
}

// The library's order is written behind the first start's first frame, and read by later ones.
void startOnce(const Home& home) {
  QProcess process;
  process.setProcessEnvironment(home.environment());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.start(QStringLiteral(TARNLOFT_PROGRAM), QStringList());
  for (int i = 0; !QFile::exists(home.path(QStringLiteral("config/tarnloft.ini"))); ++i) {
    if (i == 600) stop("the program kept no order of brands");
    QThread::msleep(50);
  }
  process.terminate();
  process.waitForFinished();
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

}  // namespace

int main() {
  Home home;
  home.addBrands();
  startOnce(home);
  // Neighbours in time are compared, because the machine's speed drifts.
  std::vector<double> starts, smallest, ratios;
  for (int round = 0; round < 41; ++round) {
    starts.push_back(firstFrame(QStringLiteral(TARNLOFT_PROGRAM), home));
    smallest.push_back(firstFrame(QStringLiteral(SMALLEST_WINDOW), home));
    ratios.push_back(starts.back() / smallest.back());
  }
  std::printf("\nFirst frame: %.0f ms with %d brands, %.0f ms in the smallest window\n",
              median(starts) * 1e3, brandCount, median(smallest) * 1e3);
  printRatio("start to first frame with 200 brands / the smallest window with one control",
             median(ratios), Aim::atMost, 1.6);
}
