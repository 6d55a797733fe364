// A window over a package as the program would have it: dragging in it drags out the first item of
// the first section, and a drop goes to the second section. Arguments: x, y, the package, the size
// of the TIFF that its item makes. Prints READY once it is on the screen, and what happens, a line
// each.
#include "assets/DropImport.h"
#include "assets/ItemDrag.h"
#include "assets/TileDrag.h"
#include "platform/desktop/dragging/MimeDrops.h"
#include "platform/desktop/dragging/QtDragSession.h"
#include "platform/desktop/files/PosixFileStore.h"
#include "testing/FakeDrops.h"
#include "testing/TestServices.h"

#include <QCursor>
#include <QDropEvent>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QTimer>

#include <cstdio>

using namespace tarnloft;

namespace {

void say(const QString& line) {
  std::puts(qPrintable(line));
  std::fflush(stdout);
}

class TileWindow : public QRasterWindow {
 public:
  TileWindow(BrandDocument& document, PosixFileStore& files, int tiffSize)
      : document_(document), files_(files), tiffSize_(tiffSize) {
    connect(&document, &BrandDocument::brandChanged, this, [this] { sayItems(); });
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter(this).fillRect(QRect(QPoint(), size()), Qt::blue);
    if (!std::exchange(isReady_, true)) say("READY");
  }
  void mousePressEvent(QMouseEvent*) override { pressed_ = true; }
  void mouseMoveEvent(QMouseEvent*) override {
    if (!std::exchange(pressed_, false)) return;
    const DragServices services{files_, types_, [this](const QString& path, qint64) {
                                  say("TIFF " + path);
                                  return std::optional(QByteArray(tiffSize_, 't'));
                                }};
    QImage picture(32, 32, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::red);
    for (int i = 0; i < 8; ++i) picture.setPixelColor(i, 0, Qt::transparent);
    const Item& item = document_.brand().sections.at(0).items.at(0);
    QTimer seeing;
    connect(&seeing, &QTimer::timeout, this, &TileWindow::sayPicture);
    seeing.start(20);
    session_.drag({TileDrag::makeDragProvider(services, document_.files(), item)},
                  {picture, {8, 8}});
    say("DRAGGED");
  }
  bool event(QEvent* event) override {
    switch (event->type()) {
      case QEvent::DragEnter:
      case QEvent::DragMove: hover(static_cast<QDragMoveEvent&>(*event)); return true;
      case QEvent::Drop: drop(static_cast<QDropEvent&>(*event)); return true;
      default: return QRasterWindow::event(event);
    }
  }

 private:
  void hover(QDragMoveEvent& event) {
    const QMimeData& drag = *event.mimeData();
    const bool isTaken = drops_.offers(drag, ItemDrag::type) ||
                         drops_.offers(drag, DropType::fileURL) ||
                         drops_.offers(drag, DropType::image);
    event.setAccepted(isTaken);
    if (isTaken) say("OVER");
  }
  void drop(QDropEvent& event) {
    const ImportServices services{types_, fonts_, workers_, [](const auto&...) {}};
    const bool isTaken = DropImport::handle(services, drops_.things(*event.mimeData()),
                                            document_.brand().sections.at(1).id, document_);
    say(QString("DROP %1").arg(isTaken ? "taken" : "refused"));
    event.acceptProposedAction();
  }
  // What the screen shows where the carried picture is clear. It follows the pointer a little late:
  // it is in place where its own red is, and the window's blue beside it.
  void sayPicture() {
    const QPoint corner = QCursor::pos() - QPoint(8, 8);
    const QImage seen = screen()->grabWindow(0, corner.x() - 2, corner.y() - 2, 12, 12).toImage();
    if (seen.pixelColor(8, 8) != Qt::red || seen.pixelColor(0, 2) != Qt::blue) return;
    say("PICTURE " + seen.pixelColor(4, 2).name());
  }
  void sayItems() {
    QString line = "ITEMS";
    for (const Section& section : document_.brand().sections) {
      line += " |";
      for (const Item& item : section.items) line += ' ' + item.displayName();
    }
    say(line);
  }

  BrandDocument& document_;
  PosixFileStore& files_;
  int tiffSize_;
  FakeTypes types_;
  FakeFonts fonts_;
  QtDragSession session_;
  bool isReady_ = false;
  bool pressed_ = false;
  QThreadPool workers_;
  MimeDrops drops_{workers_};
};

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  PosixFileStore files;
  ListedLog log;
  const auto document = BrandDocument::load({files, log}, arguments.value(3));
  if (!document) return 1;
  TileWindow window(*document, files, arguments.value(4).toInt());
  window.setFlags(Qt::FramelessWindowHint);
  window.setGeometry(arguments.value(1).toInt(), arguments.value(2).toInt(), 200, 150);
  window.show();
  return QGuiApplication::exec();
}
