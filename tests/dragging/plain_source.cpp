// A window of another program to drag from. Arguments: x, y, then "picture" with an address that it
// comes from, or paths of files. Prints READY once it is on the screen.
#include <QDrag>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QRasterWindow>
#include <QUrl>

#include <cstdio>

namespace {

class PlainSource : public QRasterWindow {
 public:
  explicit PlainSource(QStringList what) : what_(std::move(what)) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    if (std::exchange(isReady_, true)) return;
    std::puts("READY");
    std::fflush(stdout);
  }
  void mousePressEvent(QMouseEvent*) override { pressed_ = true; }
  void mouseMoveEvent(QMouseEvent*) override {
    if (!std::exchange(pressed_, false)) return;
    auto* data = new QMimeData;
    what_.first() == "picture" ? fillWithPicture(*data) : fillWithFiles(*data);
    auto* drag = new QDrag(this);
    drag->setMimeData(data);
    drag->exec(Qt::CopyAction | Qt::MoveAction);
  }

 private:
  void fillWithPicture(QMimeData& data) {
    QImage image(300, 200, QImage::Format_ARGB32);
    image.fill(QColor(10, 200, 30, 128));
    data.setImageData(image);
    if (what_.size() > 1) data.setUrls({QUrl(what_.at(1))});
  }
  void fillWithFiles(QMimeData& data) {
    QList<QUrl> urls;
    for (const QString& path : what_) urls << QUrl::fromLocalFile(path);
    data.setUrls(urls);
  }

  QStringList what_;
  bool isReady_ = false;
  bool pressed_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  PlainSource window(arguments.mid(3));
  window.setFlags(Qt::FramelessWindowHint);
  window.setGeometry(arguments.value(1).toInt(), arguments.value(2).toInt(), 200, 150);
  window.show();
  return QGuiApplication::exec();
}
