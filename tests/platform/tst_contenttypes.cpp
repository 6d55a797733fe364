#include "platform/desktop/system/MimeContentTypes.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QTest>

#include <sys/stat.h>

using namespace tarnloft;

class TestContentTypes : public QObject {
  Q_OBJECT

 private slots:
  void knowsWhatABrandHolds() {
    const Cases<QString, QStringList> cases{
        {"images", "image",
         QStringList{"png", "jpg", "jpeg", "JPG", "heic", "heif", "avif", "webp", "tiff",
                     "tif", "gif", "bmp",  "svg", "svgz", "ico",  "icns", "psd",  "eps",
                     "ps",  "ai",  "jp2",  "jxl", "dng",  "cr2",  "exr",  "tga"}},
        {"movies", "movie",
         QStringList{"mp4", "MP4", "m4v", "mov", "qt",  "avi", "mkv", "webm", "mpg", "ts",
                     "mts", "ogv", "flv", "wmv", "asf", "3gp", "3g2", "dv",   "mxf", "vob"}},
        {"fonts", "font", QStringList{"ttf", "otf", "OTF", "ttc", "woff", "woff2", "pfb", "pfa"}},
        {"others", "data",
         QStringList{"pdf", "txt", "html", "zip", "mp3", "m4a", "m3u8", "afm", "css", "docx",
                     "json"}},
        {"nothing", "none", QStringList{"", "unheardof", "a/b", "."}}};
    cases.check([&](const QString& contentClass, const QStringList& extensions) {
      for (const QString& extension : extensions) {
        const QString type = types.typeOfExtension(extension);
        QVERIFY2(classOf(type) == contentClass, qPrintable(extension + " is " + type));
      }
    });
  }

  // Without an extension, with one that stands for nothing, and with one that stands for several.
  void believesAnExtensionOrLooksIntoTheFile() {
    const QByteArray png("\x89PNG\r\n\x1a\n");
    const auto fixture = [](const char* name) { return contentOf(FIXTURES "/" + QString(name)); };
    const Cases<QString, QByteArray, QString> cases{
        {"believed extension", "a.b.MOV", png, "video/quicktime"},
        {"believed of nothing", "a.png", "", "image/png"},
        {"picture", "logo", png, "image/png"},
        {"unknown extension", "logo.unheardof", png, "image/png"},
        {"font", "type", fixture("fonts/plain.woff2"), "font/woff2"},
        {"clip", "clip", fixture("videos/h264.mp4"), "video/mp4"},
        {"stream", "a.ts", fixture("videos/h264.ts"), "video/mp2t"},
        {"film", "a.ogg", fixture("videos/theora.ogv"), "video/x-theora+ogg"},
        {"OpenType", "a.otf", fixture("fonts/plain.otf"), "font/otf"},
        {"text", "notes", "The quick brown fox\n", "text/plain"}};
    cases.check([&](const QString& name, const QByteArray& content, const QString& type) {
      TestServices disk;
      QVERIFY(writeFile(disk.path(name), content));
      QCOMPARE(types.typeOfFile(disk.path(name)), type);
    });
  }

  void hasNoTypeOfWhatIsNoFile() {
    TestServices disk;
    const QString pipe = disk.path("pipe");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {pipe, disk.folder.path(), disk.path("missing.png"), QString()}) {
      QCOMPARE(types.typeOfFile(path), QString());
    }
  }

 private:
  // The one class beside `data` that a type conforms to, or "data", or "none", or "several".
  QString classOf(const QString& type) const {
    const bool image = types.conforms(type, ContentClass::image);
    const bool movie = types.conforms(type, ContentClass::movie);
    const bool font = types.conforms(type, ContentClass::font);
    if (movie != types.conforms(type, ContentClass::video)) return "half a movie";
    if (image + movie + font > 1) return "several";
    if (!types.conforms(type, ContentClass::data)) return "none";
    return image ? "image" : movie ? "movie" : font ? "font" : "data";
  }

  const MimeContentTypes types;
};

QTEST_GUILESS_MAIN(TestContentTypes)
#include "tst_contenttypes.moc"
