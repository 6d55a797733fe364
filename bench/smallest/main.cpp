#include <QGuiApplication>
#include <QQmlApplicationEngine>

int main(int argc, char** argv) {
  QGuiApplication application(argc, argv);
  QQmlApplicationEngine engine(QUrl("qrc:/qt-project.org/imports/Smallest/Smallest.qml"));
  return engine.rootObjects().isEmpty() ? 1 : QGuiApplication::exec();
}
