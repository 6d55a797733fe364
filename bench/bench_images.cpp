// Thumbnails of a folder of pictures and an export, beside the same work by the library's own
// programs. Each side is a program run from its start to its end.
#include "Process.h"
#include "Ratio.h"
#include "assets/BackgroundWork.h"
#include "assets/ExportEstimate.h"
#include "assets/ImageExporter.h"
#include "assets/KeptMedia.h"
#include "assets/ThumbnailLoader.h"
#include "platform/desktop/decoding/CagedImages.h"
#include "platform/desktop/thumbnails/SharedThumbnails.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>

using namespace tarnloft;

namespace {

constexpr int maxPixel = 512;
constexpr int copies = 10;  // of each picture

// Pictures as they come from cameras, scanners and drawing programs. The first stands for all: the
// colours of clouds, with the noise of a camera.
struct Picture {
  const char* name;
  const char* command;  // from `base12.v` of 12 megapixels, `base24.v` and `base3.v`
};

constexpr Picture pictures[] = {
    {"a.jpg", "copy base24.v a.jpg[Q=90]"},
    {"b.jpg", "copy base24.v b.jpg[Q=95]"},
    {"c.jpg", "copy base12.v c.jpg[Q=90]"},
    {"d.jpg", "copy base12.v d.jpg[Q=80]"},
    {"e.jpg", "copy base12.v e.jpg[Q=85,interlace]"},
    {"f.jpg", "copy base12.v f.jpg[Q=75]"},
    {"g.jpg", "icc_transform base12.v g.jpg[Q=90] p3 --input-profile srgb"},
    {"h.jpg", "copy base3.v h.jpg[Q=90]"},
    {"i.png", "copy base12.v i.png"},
    {"j.png", "copy base3.v j.png"},
    {"k.png", "bandjoin_const base3.v k.png 128"},
    {"l.png", "colourspace base3.v l.png rgb16"},
    {"m.webp", "copy base12.v m.webp"},
    {"n.webp", "copy base3.v n.webp[lossless]"},
    {"o.heic", "heifsave base12.v o.heic --compression hevc -Q 60 --effort 0"},
    {"p.heic", "heifsave base3.v p.heic --compression hevc -Q 80 --effort 0"},
    {"q.avif", "heifsave base3.v q.avif --compression av1 --effort 0"},
    {"r.tif", "copy base12.v r.tif[compression=lzw,predictor=horizontal]"},
    {"s.tif", "copy base12.v s.tif"},
    {"t.gif", "copy base3.v t.gif"},
};

void vips(const QByteArray& command) {
  std::vector<QByteArray> words{"vips"};
  for (const QByteArray& word : command.split(' ')) words.push_back(word);
  run(words);
}

void makeBase() {
  for (const char band : {'1', '2', '3'}) {
    vips(QByteArray("fractsurf f.v 2000 1500 2.3"));
    vips(QByteArray("scale f.v s?.v").replace('?', band));
  }
  run({"vips", "bandjoin", "s1.v s2.v s3.v", "rgb.v"});
  vips("resize rgb.v smooth.v 2");
  vips("gaussnoise noise.v 4000 3000 --sigma 4 --mean 0");
  vips("add smooth.v noise.v sum.v");
  vips("cast sum.v bytes.v uchar");
  vips("copy bytes.v base12.v --interpretation srgb");
  vips("resize base12.v base24.v 1.4142");
  vips("resize base12.v base3.v 0.5");
}

// Makes the pictures in the working folder, and in `folder` so many of each.
void makePictures(const QString& folder) {
  makeBase();
  for (const Picture& picture : pictures) {
    vips(picture.command);
    for (int i = 0; i < copies; ++i) {
      const QString name = QString::number(i) + QLatin1String(picture.name);
      QFile::link(QDir::current().filePath(QLatin1String(picture.name)),
                  folder + QLatin1Char('/') + name);
    }
  }
}

std::shared_ptr<decoding::DecoderPool> decoders() {
  return std::make_shared<decoding::DecoderPool>(QStringLiteral(DECODER_PROGRAM));
}

// The program's own side: what the interface asks for when it shows a folder.
int makeThumbnails(const QStringList& paths) {
  CagedImages images(decoders());
  BackgroundWork work;
  qsizetype missing = paths.size();
  qsizetype failed = 0;
  for (const QString& path : paths) {
    const auto made = std::make_shared<bool>(false);
    work.start([&images, path, made] { *made = images.thumbnail(path, maxPixel).has_value(); },
               [&, made] {
                 failed += !*made;
                 if (--missing == 0) QCoreApplication::exit(failed ? 1 : 0);
               });
  }
  return QCoreApplication::exec();
}

int exportPicture(const QString& source, const QString& target) {
  CagedImages images(decoders());
  const auto bytes =
      ImageExporter::exportImage(images, source, ExportFormat::jpeg, {2048, 1536}, 0.85);
  QFile file(target);
  return bytes && file.open(QIODevice::WriteOnly) && file.write(*bytes) == bytes->size() ? 0 : 1;
}

void benchThumbnails(const QByteArray& program, const QString& folder) {
  std::vector<QByteArray> ours{program, "--thumbnails"};
  std::vector<QByteArray> theirs{
      "vipsthumbnail", "--size", QByteArray::number(maxPixel), "--eprofile", "srgb", "-o", "%s.v"};
  for (const QString& name : QDir(folder).entryList(QDir::Files)) {
    ours.push_back(QFile::encodeName(folder + QLatin1Char('/') + name));
    theirs.push_back(ours.back());
  }
  qputenv("VIPS_WARNING", "0");  // keeps it from telling of each file's oddities
  qputenv("VIPS_CONCURRENCY", QByteArray::number(BackgroundWork::utilityThreads()));
  std::vector<Cost> own, reference;
  for (int round = 0; round < 3; ++round) {
    own.push_back(run(ours));
    reference.push_back(run(theirs));
  }
  qunsetenv("VIPS_CONCURRENCY");
  std::printf(
      "\nThumbnails of %d pictures, %d threads: %.1f s, %.0f MB; vipsthumbnail %.1f s, "
      "%.0f MB\n",
      int(theirs.size()) - 7, BackgroundWork::utilityThreads(), medianSeconds(own), medianPeak(own),
      medianSeconds(reference), medianPeak(reference));
  printRatio("thumbnails of a folder / vipsthumbnail, same number of threads",
             medianSeconds(own) / medianSeconds(reference), Aim::atMost, 1.1);
  printRatio("peak memory of that / vipsthumbnail's", medianPeak(own) / medianPeak(reference),
             Aim::atMost, 1.2);
}

void benchExport(const QByteArray& program) {
  std::vector<Cost> own, reference;
  for (int round = 0; round < 15; ++round) {
    own.push_back(run({program, "--export", "a.jpg", "own.jpg"}));
    reference.push_back(run({"vips", "thumbnail", "a.jpg", "reference.jpg[Q=85]", "2048",
                             "--height", "1536", "--size", "force"}));
  }
  std::printf("\nA JPEG of 24 megapixels to 2048 px: %.0f ms, vips thumbnail %.0f ms\n",
              medianSeconds(own) * 1e3, medianSeconds(reference) * 1e3);
  printRatio("export of a 24-megapixel JPEG to 2048 px / vips thumbnail",
             medianSeconds(own) / medianSeconds(reference), Aim::atMost, 1.15);
}

// Seconds until the pictures of that many tiles are there, of a program that has just started.
double showing(const QStringList& paths, const QString& cache) {
  CagedImages images(decoders());
  SharedThumbnails store(cache);
  KeptImages kept(images, store);
  BackgroundWork work;
  ThumbnailLoader loader(kept, work);
  qsizetype missing = paths.size();
  std::vector<ThumbnailLoader::Request> requests;
  QElapsedTimer clock;
  clock.start();
  constexpr int tilePixels = 192;
  for (const QString& path : paths) {
    requests.push_back(loader.thumbnail(path, tilePixels, [&](const auto& image) {
      if (!image || --missing == 0) QCoreApplication::exit(image ? 0 : 1);
    }));
  }
  if (QCoreApplication::exec() != 0) qFatal("a picture can't be read");
  const double seconds = double(clock.nsecsElapsed()) / 1e9;
  // What waits to be written is bounded; a user looks at the page for longer than that takes.
  QDeadlineTimer patience(std::chrono::seconds(20));
  const auto written = [&] { return QDir(cache + "/large").entryList({"*.png"}).size(); };
  while (written() < paths.size() && !patience.hasExpired()) QThread::msleep(20);
  return seconds;
}

void benchSecondOpening(const QString& cache) {
  constexpr int seen = 40;  // of 200 photos
  QStringList paths;
  for (int i = 0; i < seen; ++i) {
    paths << QDir::current().filePath(QStringLiteral("photo%1.jpg").arg(i));
    QFile::link(QDir::current().filePath(QStringLiteral("a.jpg")), paths.last());
  }
  const double first = showing(paths, cache), second = showing(paths, cache);
  std::printf("\n%d photos of 24 megapixels: %.2f s at the first opening, %.3f s at the second\n",
              seen, first, second);
  printRatio("pictures of a page at its second opening / at its first", second / first, Aim::atMost,
             0.05);
}

// The size that an export will have, found while the event loop runs.
void benchEstimate() {
  CagedImages images(decoders());
  BackgroundWork work;
  const ExportChoice choice{ExportFormat::jpeg, {5656, 4243}, 0.85};
  std::vector<double> alone, estimated;
  double longest = 0;
  for (int round = 0; round < 5; ++round) {
    QElapsedTimer clock;
    clock.start();
    (void)ImageExporter::exportImage(images, QStringLiteral("a.jpg"), choice.format,
                                     choice.pixelSize, choice.quality);
    alone.push_back(double(clock.nsecsElapsed()) / 1e6);
    const ExportTarget target{{}, QStringLiteral("a.jpg"), {}, {}};
    ExportEstimate estimate(images, work, target, std::chrono::milliseconds(0));
    clock.start();
    estimate.setChoice(choice);
    while (!estimate.text()) {
      QElapsedTimer turn;
      turn.start();
      QCoreApplication::processEvents();
      longest = std::max(longest, double(turn.nsecsElapsed()) / 1e6);
      QThread::usleep(200);
    }
    estimated.push_back(double(clock.nsecsElapsed()) / 1e6);
  }
  std::sort(alone.begin(), alone.end());
  std::sort(estimated.begin(), estimated.end());
  std::printf(
      "\nThe size of a 24-megapixel export: %.0f ms, the conversion alone %.0f ms; longest "
      "turn of the event loop %.1f ms (aim: at most 16)\n",
      estimated.at(2), alone.at(2), longest);
  printRatio("the estimate of an export / the conversion alone", estimated.at(2) / alone.at(2),
             Aim::atMost, 1.1);
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.value(1) == QStringLiteral("--thumbnails")) {
    return makeThumbnails(arguments.sliced(2));
  }
  if (arguments.value(1) == QStringLiteral("--export")) {
    return exportPicture(arguments.at(2), arguments.at(3));
  }
  const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
  const QTemporaryDir scratch;
  const QString folder = scratch.filePath(QStringLiteral("pictures"));
  QDir().mkpath(folder);
  QDir::setCurrent(scratch.path());
  makePictures(folder);
  benchThumbnails(program, folder);
  benchExport(program);
  benchSecondOpening(scratch.filePath(QStringLiteral("cache")));
  benchEstimate();
}
