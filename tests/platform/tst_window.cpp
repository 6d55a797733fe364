#include "platform/desktop/hotkey/PortalHotKey.h"
#include "platform/desktop/system/IniPreferences.h"
#include "platform/desktop/window/DesktopColorSampler.h"
#include "platform/desktop/window/DesktopFileDialogs.h"
#include "platform/desktop/window/DesktopFileViewer.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPainter>
#include <QProcess>
#include <QRasterWindow>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

using namespace tarnloft;

// --- The other side of the bus

class FakeFileManager : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

 public:
  QStringList shown;

 public slots:
  void ShowItems(const QStringList& urls, const QString& /*startup*/) { shown << urls; }
};

// A portal's answer to the call that is being served, in the next turn; gives the request's path.
QDBusObjectPath answered(const QDBusContext& call, const QVariantMap& options, uint response,
                         const QVariantMap& results) {
  QString sender = call.message().service().mid(1);
  const QString path = "/org/freedesktop/portal/desktop/request/" + sender.replace('.', '_') + '/' +
                       options.value("handle_token").toString();
  auto signal = QDBusMessage::createSignal(path, "org.freedesktop.portal.Request", "Response");
  signal << response << results;
  QTimer::singleShot(0, [bus = call.connection(), signal] { bus.send(signal); });
  return QDBusObjectPath(path);
}

class FakePortal : public QObject, public QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")

 public:
  uint response = 0;

 public slots:
  QDBusObjectPath PickColor(const QString& /*window*/, const QVariantMap& options) {
    QDBusArgument color;
    color.beginStructure();
    color << 1.0 << 0.5 << 0.25;
    color.endStructure();
    return answered(*this, options, response, {{"color", QVariant::fromValue(color)}});
  }
};

// A desktop's file dialogs, with a user who answers at once.
class FakeFileChooser : public QObject, public QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")

 public:
  QList<QStringList> answers;  // one for each dialog; empty for a cancelled one
  QStringList asked;

 public slots:
  QDBusObjectPath OpenFile(const QString& parent, const QString& title,
                           const QVariantMap& options) {
    asked << parent + ' ' + title + ' ' + options.value("current_name").toString() +
                 options.value("current_folder").toByteArray();
    const QStringList chosen = answers.takeFirst();
    return answered(*this, options, chosen.isEmpty() ? 1 : 0, {{"uris", chosen}});
  }
  QDBusObjectPath SaveFile(const QString& parent, const QString& title,
                           const QVariantMap& options) {
    return OpenFile(parent, title, options);
  }
};

struct Shortcut {
  QString id;
  QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& out, const Shortcut& shortcut) {
  out.beginStructure();
  out << shortcut.id << shortcut.properties;
  out.endStructure();
  return out;
}

const QDBusArgument& operator>>(const QDBusArgument& in, Shortcut& shortcut) {
  in.beginStructure();
  in >> shortcut.id >> shortcut.properties;
  in.endStructure();
  return in;
}

// A desktop that keeps the first combination that it was told for an ID, as some do.
class FakeShortcuts : public QObject, public QDBusContext {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.GlobalShortcuts")

 public:
  FakeShortcuts() {
    qDBusRegisterMetaType<Shortcut>();
    qDBusRegisterMetaType<QList<Shortcut>>();
  }

 public slots:
  QDBusObjectPath CreateSession(const QVariantMap& options) {
    const auto asked = qdbus_cast<QList<Shortcut>>(options.value("shortcuts"));
    id_ = asked.constFirst().id;
    if (!kept_.contains(id_)) kept_[id_] = asked.constFirst().properties["preferred_trigger"];
    return answered(*this, options, 0, {{"session_handle", "/session"}});
  }
  QDBusObjectPath ListShortcuts(const QDBusObjectPath& /*session*/, const QVariantMap& options) {
    const QList<Shortcut> list{{id_, {{"trigger_description", kept_[id_]}}}};
    return answered(*this, options, 0, {{"shortcuts", QVariant::fromValue(list)}});
  }

 private:
  QString id_;  // of the session
  QVariantMap kept_;
};

namespace {

// A service of another program, as far as the bus knows.
struct Service {
  QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "other");
  QString name;
  QString path;

  Service(const QString& serviceName, const QString& objectPath, QObject* object)
      : name(serviceName), path(objectPath) {
    if (!bus.registerObject(path, object, QDBusConnection::ExportAllSlots) ||
        !bus.registerService(name)) {
      qFatal("no session bus");
    }
  }
  ~Service() {
    bus.unregisterService(name);
    bus.unregisterObject(path);
  }
  Q_DISABLE_COPY_MOVE(Service)
};

class FolderListingViewer : public DesktopFileViewer {
 public:
  QStringList opened;

 protected:
  void openFolder(const QString& path) override { opened << path; }
};

class Plain : public QRasterWindow {
 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter(this).fillRect(QRect(QPoint(), size()), QColor(0xcc, 0x33, 0x11));
  }
};

bool xdotool(const QStringList& arguments) { return QProcess::execute("xdotool", arguments) == 0; }

struct Pick {
  int calls = 0;
  std::optional<SampledColor> color;
  DesktopColorSampler sampler{[](const QString&) {}};

  void start() {
    sampler.show([this](std::optional<SampledColor> picked) {
      ++calls;
      color = picked;
    });
  }
};

}  // namespace

// The desktop's services against a session bus and a screen of the test's own.
class TestWindow : public QObject {
  Q_OBJECT

 private slots:
  void revealsByTheFileManagerOrOpensTheFolder() {
    const QTemporaryDir folder;
    QFile file(folder.filePath("Acmé & 北.zip"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    FolderListingViewer viewer;
    viewer.reveal(file.fileName());
    QTRY_COMPARE(viewer.opened, QStringList(folder.path()));
    FakeFileManager manager;
    const Service service("org.freedesktop.FileManager1", "/org/freedesktop/FileManager1",
                          &manager);
    viewer.reveal(file.fileName());
    viewer.reveal(folder.filePath("missing"));
    QTRY_COMPARE(manager.shown.size(), 1);
    QCOMPARE(QUrl::fromEncoded(manager.shown.first().toLatin1()).toLocalFile(), file.fileName());
    QCOMPARE(viewer.opened.size(), 1);
  }

  // Also another key than the first, and behind a portal that has ended and started again.
  void hasAKeyByThePortal() {
    const QString name("org.freedesktop.portal.Desktop");
    const QString path("/org/freedesktop/portal/desktop");
    using State = GlobalHotKey::State;
    FakeShortcuts shortcuts;
    ListedLog log;
    PortalHotKey key(log);
    QList<State> states;
    key.install([] {}, [&] { states << key.state(); });
    {
      const Service service(name, path, &shortcuts);
      for (const auto& [code, trigger] : {std::pair(49u, "CTRL+ALT+space"), {40u, "CTRL+ALT+k"}}) {
        key.update(code, HotKeyModifier::control | HotKeyModifier::option);
        QTRY_COMPARE(key.state(), State::registered);
        QCOMPARE(key.trigger(), trigger);
      }
      states.clear();
    }
    const Service service(name, path, &shortcuts);
    QTRY_COMPARE(states, (QList{State::waiting, State::registered}));
    QCOMPARE(log.lines, QStringList());
  }

  void picksByThePortal() {
    const Cases<uint, bool> cases{{"picked", 0u, true}, {"cancelled", 1u, false}};
    cases.check([&](uint response, bool picked) {
      FakePortal portal;
      portal.response = response;
      const Service service("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                            &portal);
      Pick pick;
      pick.start();
      QTRY_COMPARE(pick.calls, 1);
      QCOMPARE(pick.color.has_value(), picked);
      if (!pick.color) return;
      QCOMPARE(pick.color->red, 1.0);
      QCOMPARE(pick.color->green, 0.5);
      QCOMPARE(pick.color->blue, 0.25);
    });
  }

  void picksFromTheScreen() {
    const Cases<QStringList, bool> cases{{"click", QStringList{"click", "1"}, true},
                                         {"Esc", QStringList{"key", "Escape"}, false},
                                         {"other button", QStringList{"click", "3"}, false}};
    cases.check([&](const QStringList& gesture, bool picked) {
      Plain window;
      window.setGeometry(100, 100, 200, 200);
      window.show();
      QVERIFY(QTest::qWaitForWindowExposed(&window));
      QTest::qWait(100);
      const qsizetype before = QGuiApplication::allWindows().size();
      Pick pick;
      pick.start();
      QTRY_VERIFY(QGuiApplication::allWindows().size() > before);
      QTest::qWait(200);
      QVERIFY(xdotool(QStringList{"mousemove", "150", "160"} + gesture));
      QTRY_COMPARE(pick.calls, 1);
      QCOMPARE(pick.color.has_value(), picked);
      if (!pick.color) return;
      QCOMPARE(qRound(pick.color->red * 255), 0xcc);
      QCOMPARE(qRound(pick.color->green * 255), 0x33);
      QCOMPARE(qRound(pick.color->blue * 255), 0x11);
    });
  }

  void asksByThePortal() {
    FakeFileChooser chooser;
    const Service service("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                          &chooser);
    const QTemporaryDir folder;
    const QString base = "file://" + folder.path();
    QFile there(folder.filePath("b c.html"));
    QVERIFY(there.open(QIODevice::WriteOnly));
    Plain window;
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    ListedLog log;
    IniPreferences state(folder.filePath("state.ini"), log);
    DesktopFileDialogs dialogs(state);
    const QString parent = "x11:" + QString::number(window.winId(), 16);

    // Without its extension the name is another file's, of which the dialog asks.
    chooser.answers = {{base + "/b%20c"}, {base + "/new"}};
    QCOMPARE(dialogs.savePath("A/B", "text/html"), folder.filePath("new.html"));
    QCOMPARE(chooser.asked, QStringList({parent + " Save A-B", parent + " Save b c.html" +
                                                                   folder.path() + QChar(u'\0')}));
    chooser.answers = {{base + "/1.png", base + "/%23.png"}, {}, {base}};
    QCOMPARE(dialogs.openFiles({"image/*"}),
             QStringList({folder.filePath("1.png"), folder.filePath("#.png")}));
    QCOMPARE(dialogs.openFiles({"image/*"}), QStringList());
    QCOMPARE(dialogs.chooseFolder({}, {}), folder.path());
  }

  void choosesFilesAndPackages() {
    const Cases<QString, bool> cases{{"archive", "a.zip", true},
                                     {"package", "A.tarnloft", true},
                                     {"other folder", "plain", false}};
    cases.check([&](const QString& name, bool chosen) {
      const QTemporaryDir folder;
      QVERIFY(QDir(folder.path()).mkpath("A.tarnloft") && QDir(folder.path()).mkpath("plain"));
      QFile file(folder.filePath("a.zip"));
      QVERIFY(file.open(QIODevice::WriteOnly));
      Plain window;
      window.show();
      QVERIFY(QTest::qWaitForWindowExposed(&window));
      ListedLog log;
      IniPreferences state(folder.filePath("state.ini"), log);
      state.setText("importDialogFolder", folder.path());
      QTimer user;
      user.callOnTimeout([&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        user.stop();
        QCOMPARE(dialog->windowHandle()->transientParent(), &window);
        QCOMPARE(dialog->directory(), QDir(folder.path()));
        dialog->findChild<QLineEdit*>()->setText(folder.filePath(name));
        QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
        QTimer::singleShot(200, dialog, &QDialog::reject);  // one that is still there
      });
      user.start(50);
      const auto path =
          DesktopFileDialogs(state).openFileOrFolder({"application/zip"}, {"tarnloft"});
      QCOMPARE(path.has_value(), chosen);
      if (path) QCOMPARE(*path, folder.filePath(name));
    });
  }
};

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
