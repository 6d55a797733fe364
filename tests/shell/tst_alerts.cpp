#include "shell/TestViews.h"
#include "testing/Cases.h"
#include "testing/FakeUpdater.h"

#include <QSignalSpy>

using namespace tarnloft;

namespace {

struct Alarmed : Views {
  const QString reason = "Something other than a file is there";
  const QString manifest = Package::manifestPath(library.packagePath("Acme"));

  void start() {
    library.add("Acme", {Section::create("Logos")});
    Views::start();
  }
  // Puts a folder where the manifest was, which no save replaces.
  void block() const {
    QVERIFY(QFile::rename(manifest, manifest + ".old") && QDir().mkdir(manifest));
  }
  void unblock() const {
    QVERIFY(QDir().rmdir(manifest) && QFile::rename(manifest + ".old", manifest));
  }
  // Makes a change that can't be saved.
  void failToSave() {
    block();
    library.store->openDocument()->edit([](Brand& brand) { brand.name = "Birch"; });
    library.store->openDocument()->saveNow();
  }
  QString focused() const {
    QAccessibleInterface* const known =
        QAccessible::queryAccessibleInterface(window().activeFocusItem());
    return known ? known->text(QAccessible::Name) : QString();
  }
  QString rowDescription(const QString& brand) const {
    QQuickItem* const row = item(QAccessible::ListItem, brand);
    QAccessibleInterface* const known = QAccessible::queryAccessibleInterface(row);
    return known ? known->text(QAccessible::Description) : "no row";
  }
  bool shows(const QString& text) const { return item(QAccessible::StaticText, text); }
  // Gives an answer to the dialog of that title.
  void answer(const QString& title, const QString& text) {
    QTRY_VERIFY(item(QAccessible::Dialog, title));
    if (text == "Return") return press(Qt::Key_Return);
    QQuickItem* const button = item(QAccessible::Button, text, item(QAccessible::Dialog, title));
    QVERIFY(button);
    click(button);
  }
};

// Does nothing until it is let go.
class HeldDisk : public DiskWork {
 public:
  bool isHeld = true;
  void run(std::function<void()> work, std::function<void()> done, Patience) override {
    tasks_ << std::move(work) << std::move(done);
    if (!isHeld) release();
  }
  bool finish(std::chrono::milliseconds) override { return tasks_.isEmpty(); }
  void release() {
    isHeld = false;
    while (!tasks_.isEmpty()) tasks_.takeFirst()();
  }

 private:
  QList<std::function<void()>> tasks_;
};

}  // namespace

// What the window tells and asks when something has failed.
class TestAlerts : public QObject {
  Q_OBJECT

 private slots:
  void aBarTellsOfUnsavedChanges() {
    Alarmed views;
    views.start();
    QCOMPARE(views.rowDescription("Acme"), QString());
    views.failToSave();
    const QString text = "Changes aren't saved: " + views.reason;
    QTRY_VERIFY(views.item(alert, text));
    QTRY_COMPARE(views.rowDescription("Acme"), "Changes aren't saved");

    // Its buttons come before the page's.
    views.item(button, "New Brand")->forceActiveFocus(Qt::TabFocusReason);
    for (const char* name : {"Try Again", "Save a Copy…", "Rename “Birch”"}) {
      views.press(Qt::Key_Tab);
      QCOMPARE(views.focused(), QString(name));
    }
    views.press(Qt::Key_Tab, Qt::ShiftModifier);
    views.press(Qt::Key_Tab, Qt::ShiftModifier);
    views.press(Qt::Key_Space);
    QVERIFY(views.item(alert, text));

    views.unblock();
    views.press(Qt::Key_Space);
    QTRY_VERIFY(!views.item(alert, text));
    QTRY_VERIFY(!views.item(button, "Try Again"));
    QCOMPARE(views.focused(), "Rename “Birch”");
    QTRY_COMPARE(views.rowDescription("Birch"), QString());
    QVERIFY(contentOf(views.manifest).contains("Birch"));
  }

  void aBarTellsOfALibraryThatHasGone() {
    Alarmed views;
    views.start();
    const QString& folder = views.library.folder;
    QVERIFY(QDir().rename(folder, folder + " away"));
    views.library.store->scan();
    const QString text = QString("“%1” isn't there just now.").arg(folder);
    QTRY_VERIFY(views.item(alert, text));
    QVERIFY(views.item(row, "Acme"));
    QVERIFY(QDir().rename(folder + " away", folder));
    QTRY_VERIFY(views.item(button, "Try Again"));
    views.click(views.item(button, "Try Again"));
    QTRY_VERIFY(!views.item(alert, text));
  }

  void aLibraryThatCannotBeReadIsNotEmpty() {
    Views views;
    writeFile(views.library.folder, "a file");
    views.start();
    QTRY_VERIFY(views.item(QAccessible::StaticText, "The library can't be opened"));
    QVERIFY(!views.item(QAccessible::StaticText, "Welcome to Tarn Loft"));
    QFile::remove(views.library.folder);
    views.library.add("Acme");
    views.click(views.item(button, "Try Again"));
    QTRY_VERIFY(views.item(row, "Acme"));
    QTRY_VERIFY(!views.item(QAccessible::StaticText, "The library can't be opened"));
  }

  void aSlowDiskIsNoEmptyLibrary() {
    HeldDisk disk;
    Alarmed views;
    views.library.add("Beta");
    views.library.work = &disk;
    views.start();
    QVERIFY(!views.shows("Welcome to Tarn Loft"));
    QTRY_VERIFY(views.shows("The library can't be opened"));  // after a while
    disk.release();
    QTRY_VERIFY(views.item(row, "Acme"));
    QTRY_VERIFY(!views.shows("The library can't be opened"));

    disk.isHeld = true;
    views.click(views.item(row, "Beta"));
    QTRY_VERIFY(views.shows("Opening…"));
    QVERIFY(!views.item(QAccessible::Heading, "Acme"));
    disk.release();
    QTRY_VERIFY(views.item(QAccessible::Heading, "Beta"));
    QTRY_VERIFY(!views.shows("Opening…"));
  }

  void noticesFollowEachOther() {
    Alarmed views;
    views.start();
    views.library.store->tell("One", "the reason");
    views.library.store->tell("Two", "The reason.");
    QTRY_VERIFY(views.shows("the reason."));
    views.answer("One", "Return");
    QTRY_VERIFY(views.shows("The reason."));
    QVERIFY(!views.item(dialog, "One"));
    views.answer("Two", "OK");
    QTRY_VERIFY(!views.item(dialog, "Two"));
  }

  void asksWhatToDoWithoutATrash() {
    const Cases<QStringList, qsizetype> cases{
        {"return alone", QStringList{"Return", "Return"}, qsizetype(1)},
        {"deleted", QStringList{"Delete Immediately…", "Delete"}, qsizetype(0)}};
    cases.check([&](QStringList answers, qsizetype left) {
      Alarmed views;
      views.library.trash.works = false;
      views.start();
      views.click(views.item(row, "Acme"));
      views.press(Qt::Key_Delete);
      views.answer("Move “Acme” to the Trash?", "Return");
      QTRY_VERIFY(views.shows("no trash. The brand stays in the library."));
      views.answer("“Acme” can't be moved to the Trash", answers.first());
      if (answers.size() > 1) views.answer("Delete “Acme” immediately?", answers.at(1));
      QTRY_VERIFY(!views.item(dialog, "Delete “Acme” immediately?"));
      QTRY_VERIFY(!views.item(dialog, "“Acme” can't be moved to the Trash"));
      QCOMPARE(views.library.names().size(), left);
      QCOMPARE(QFile::exists(views.manifest), !views.library.names().isEmpty());
    });
  }

  void asksAboutUpdates() {
    Alarmed views;
    FakeUpdater updater;
    UpdaterViewModel updates(updater, views.library.preferences,
                             [&] { return views.library.disk.now; });
    views.updater = &updates;
    views.start();
    const QString offer = "Tarn Loft 0.2 is available",
                  installed = "A new version of Tarn Loft is installed";
    const auto isInMenu = [&] {
      views.press(Qt::Key_H, Qt::AltModifier);
      const auto isOpen = [&] { return views.item(entry, "About Tarn Loft") != nullptr; };
      bool isThere = QTest::qWaitFor(isOpen) && views.item(entry, "Check for Updates…");
      views.press(Qt::Key_Escape);
      return QTest::qWaitFor([&] { return !isOpen(); }) && isThere;
    };
    QVERIFY(!isInMenu());
    updates.start();
    QVERIFY(isInMenu());

    const auto find = [&] {
      updates.checkIfDue();
      std::exchange(updater.found, nullptr)(SystemUpdater::Update{"0.2", "Faster.", {}});
      QTRY_VERIFY(views.item(dialog, offer));
    };
    find();
    QVERIFY(views.shows("Faster."));
    updates.dismissNews();  // as the settings do
    QTRY_VERIFY(!views.item(dialog, offer));
    QCOMPARE(updater.asked, QStringList("clock checks"));
    views.library.preferences.remove("updates.told");
    views.library.disk.now += std::chrono::hours(24);
    find();
    views.answer(offer, "Install");
    QTRY_COMPARE(updater.asked.last(), "user installs 0.2");
    QSignalSpy relaunches(&updates, &UpdaterViewModel::relaunchRequested);
    updater.ended({});
    views.answer(installed, "Relaunch");
    QTRY_COMPARE(relaunches.size(), 1);
  }

  void asksBeforeItQuits() {
    Alarmed views;
    views.start();
    views.failToSave();
    QSignalSpy quits(views.main->alerts(), &Alerts::quitConfirmed);
    const QString title = "Changes to “Birch” aren't saved", quit = "Quit Anyway";
    for (const QString& reply :
         {QString("Return"), QString("Cancel"), QString("Try Again"), quit}) {
      views.main->alerts()->askToQuit();
      views.answer(title, reply);
      QTRY_VERIFY(!views.item(dialog, title));
      QCOMPARE(quits.size(), reply == quit ? 1 : 0);
    }
    // The question goes with its reason.
    views.main->alerts()->askToQuit();
    QTRY_VERIFY(views.item(dialog, title));
    views.unblock();
    views.library.store->retrySaves();
    QTRY_VERIFY(!views.item(dialog, title));
  }
};

QTEST_MAIN(TestAlerts)
#include "tst_alerts.moc"
