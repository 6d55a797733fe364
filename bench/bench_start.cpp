// From the start of the process to its first frame: the program with 200 brands beside the smallest
// window with one control, both on the offscreen platform with software rendering.
#include "Home.h"
#include "Measure.h"
#include "Ratio.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <vector>

using namespace tarnloft;

namespace {

constexpr int brandCount = 200;

// The toolkit itself then tells of each frame that it has shown.
QProcessEnvironment environment(const Home& home) {
  QProcessEnvironment result = home.environment();
  result.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
  result.insert(QStringLiteral("QT_LOGGING_RULES"),
                QStringLiteral("qt.scenegraph.time.renderloop=true"));
  return result;
}

// Seconds from the start of the process to its first frame. The process is ended behind it.
double firstFrame(const QString& program, const Home& home) {
  QProcess process;
  process.setProcessEnvironment(environment(home));
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
  process.setProcessEnvironment(environment(home));
  process.setStandardErrorFile(QProcess::nullDevice());
  process.start(QStringLiteral(TARNLOFT_PROGRAM), QStringList());
  for (int i = 0; !QFile::exists(home.path(QStringLiteral("config/tarnloft.ini"))); ++i) {
    if (i == 600) stop("the program kept no order of brands");
    QThread::msleep(50);
  }
  process.terminate();
  process.waitForFinished();
}

}  // namespace

int main() {
  Home home;
  home.addBrands(brandCount);
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
