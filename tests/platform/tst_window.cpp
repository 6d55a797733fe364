#include "platform/desktop/hotkey/PortalHotKey.h"
#include "platform/desktop/system/IniPreferences.h"
#include "platform/desktop/window/DesktopColorSampler.h"
#include "platform/desktop/window/DesktopFileDialogs.h"
#include "platform/desktop/window/DesktopFileViewer.h"
#include "testing/BusService.h"
#include "testing/Cases.h"
#include "testing/TestServices.h"

#include <QApplication>
#include <QDBusArgument>
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

namespace {

const QString portal = "org.freedesktop.portal.Desktop";

// A portal's answer, told in the turn behind the reply, which names the request.
QDBusMessage answered(const BusService& service, const QDBusMessage& call, uint response,
                      const QVariantMap& results) {
  const auto options = qdbus_cast<QVariantMap>(call.arguments().constLast());
  QString sender = call.service().mid(1);
  const QString path = "/org/freedesktop/portal/desktop/request/" + sender.replace('.', '_') + '/' +
                       options.value("handle_token").toString();
  QTimer::singleShot(0, &service, [&service, path, response, results] {
    service.tell(path, "org.freedesktop.portal.Request", "Response", {response, results});
  });
  return call.createReply(QVariant::fromValue(QDBusObjectPath(path)));
}

// A desktop's file dialogs, with a user who answers at once.
struct FakeFileChooser {
  QList<QStringList> answers;  // one for each dialog; empty for a cancelled one
  QStringList asked;
  BusService bus{portal, [this](const QDBusMessage& call) {
                   const QVariantList arguments = call.arguments();
                   const auto options = qdbus_cast<QVariantMap>(arguments.constLast());
                   asked << arguments[0].toString() + ' ' + arguments[1].toString() + ' ' +
                                options.value("current_name").toString() +
                                options.value("current_folder").toByteArray();
                   const QStringList chosen = answers.takeFirst();
                   return answered(bus, call, chosen.isEmpty() ? 1 : 0, {{"uris", chosen}});
                 }};
};

// A desktop that keeps the first combination that it was told for an ID, as some do.
struct FakeShortcuts {
  QVariantMap& kept;
  QString id = {};  // of the session
  BusService bus{portal, [this](const QDBusMessage& call) {
                   if (call.member() == "ListShortcuts") {
                     const QList<Shortcut> list{{id, {{"trigger_description", kept[id]}}}};
                     return answered(bus, call, 0, {{"shortcuts", QVariant::fromValue(list)}});
                   }
                   if (call.member() != "CreateSession") return refusal(call);
                   const auto options = qdbus_cast<QVariantMap>(call.arguments().constLast());
                   const auto asked = qdbus_cast<QList<Shortcut>>(options["shortcuts"]);
                   id = asked.constFirst().id;
                   if (!kept.contains(id))
                     kept[id] = asked.constFirst().properties["preferred_trigger"];
                   return answered(bus, call, 0, {{"session_handle", "/session"}});
                 }};
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

// The dialogs of a program with a window.
struct Dialogs {
  const QTemporaryDir folder;
  Plain window;
  ListedLog log;
  IniPreferences state{folder.filePath("state.ini"), log};
  DesktopFileDialogs dialogs{state};

  Dialogs() {
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
  }
};

struct Pick {
  int calls = 0;
  QString color = "none";
  DesktopColorSampler sampler{[](const QString&) {}};

  void start() {
    sampler.show([this](std::optional<SampledColor> picked) {
      ++calls;
      if (picked) color = QColor::fromRgbF(picked->red, picked->green, picked->blue).name();
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
    QStringList shown;
    const BusService manager("org.freedesktop.FileManager1", [&](const QDBusMessage& call) {
      shown << call.arguments().constFirst().toStringList();
      return call.createReply();
    });
    viewer.reveal(file.fileName());
    viewer.reveal(folder.filePath("missing"));
    QTRY_COMPARE(shown.size(), 1);
    QCOMPARE(QUrl::fromEncoded(shown.first().toLatin1()).toLocalFile(), file.fileName());
    QCOMPARE(viewer.opened.size(), 1);
  }

  // Also another key than the first, and behind a portal that has ended and started again.
  void hasAKeyByThePortal() {
    using State = GlobalHotKey::State;
    qDBusRegisterMetaType<Shortcut>();
    qDBusRegisterMetaType<QList<Shortcut>>();
    QVariantMap kept;
    ListedLog log;
    PortalHotKey key(log);
    QList<State> states;
    key.install([] {}, [&] { states << key.state(); });
    {
      const FakeShortcuts shortcuts{kept};
      for (const auto& [code, trigger] : {std::pair(49u, "CTRL+ALT+space"), {40u, "CTRL+ALT+k"}}) {
        key.update(code, HotKeyModifier::control | HotKeyModifier::option);
        QTRY_COMPARE(key.state(), State::registered);
        QCOMPARE(key.trigger(), trigger);
      }
      states.clear();
    }
    const FakeShortcuts again{kept};
    QTRY_COMPARE(states, (QList{State::waiting, State::registered}));
    QCOMPARE(log.lines, QStringList());
  }

  void picksByThePortal() {
    const Cases<uint, QString> cases{{"picked", 0u, "#ff8040"}, {"cancelled", 1u, "none"}};
    cases.check([&](uint response, const QString& color) {
      const BusService service(portal, [&](const QDBusMessage& call) {
        QDBusArgument parts;
        parts.beginStructure();
        parts << 1.0 << 0.5 << 0.25;
        parts.endStructure();
        return answered(service, call, response, {{"color", QVariant::fromValue(parts)}});
      });
      Pick pick;
      pick.start();
      QTRY_COMPARE(pick.calls, 1);
      QCOMPARE(pick.color, color);
    });
  }

  void picksFromTheScreen() {
    const Cases<QStringList, QString> cases{{"click", QStringList{"click", "1"}, "#cc3311"},
                                            {"Esc", QStringList{"key", "Escape"}, "none"},
                                            {"other button", QStringList{"click", "3"}, "none"}};
    cases.check([&](const QStringList& gesture, const QString& color) {
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
      QCOMPARE(pick.color, color);
    });
  }

  void asksByThePortal() {
    FakeFileChooser chooser;
    Dialogs test;
    const QTemporaryDir& folder = test.folder;
    const QString base = "file://" + folder.path();
    QFile there(folder.filePath("b c.html"));
    QVERIFY(there.open(QIODevice::WriteOnly));
    DesktopFileDialogs& dialogs = test.dialogs;
    const QString parent = "x11:" + QString::number(test.window.winId(), 16);

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
      Dialogs test;
      const QTemporaryDir& folder = test.folder;
      QVERIFY(QDir(folder.path()).mkpath("A.tarnloft") && QDir(folder.path()).mkpath("plain"));
      QFile file(folder.filePath("a.zip"));
      QVERIFY(file.open(QIODevice::WriteOnly));
      test.state.setText("importDialogFolder", folder.path());
      QTimer user;
      user.callOnTimeout([&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        user.stop();
        QCOMPARE(dialog->windowHandle()->transientParent(), &test.window);
        QCOMPARE(dialog->directory(), QDir(folder.path()));
        dialog->findChild<QLineEdit*>()->setText(folder.filePath(name));
        QTest::keyClick(dialog->findChild<QLineEdit*>(), Qt::Key_Return);
        QTimer::singleShot(200, dialog, &QDialog::reject);  // one that is still there
      });
      user.start(50);
      const auto path = test.dialogs.openFileOrFolder({"application/zip"}, {"tarnloft"});
      QCOMPARE(path.has_value(), chosen);
      if (path) QCOMPARE(*path, folder.filePath(name));
    });
  }
};

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
