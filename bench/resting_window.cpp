#include <QApplication>
#include <QQuickWindow>
#include <QSystemTrayIcon>

// An empty window and an icon in the tray: the least that a program with both costs, and one that
// only waits.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QPixmap picture(24, 24);
  picture.fill(Qt::white);
  QSystemTrayIcon icon{QIcon(picture)};
  icon.show();
  QQuickWindow window;
  window.resize(200, 100);
  window.show();
  return QApplication::exec();
}
