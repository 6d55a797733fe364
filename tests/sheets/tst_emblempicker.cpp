#include "sheets/emblems/EmblemPicker.h"
#include "sheets/emblems/EmblemSymbolList.h"
#include "testing/Cases.h"
#include "testing/TestImports.h"

#include <QSignalSpy>
#include <QTest>

using namespace tarnloft;

namespace {

using Kind = EmblemPicker::Kind;

// The picker of the first section's emblem.
struct PickerTest : TestImports {
  QUuid section = document->brand().sections.at(0).id;
  std::unique_ptr<EmblemPicker> picker;

  EmblemPicker& open() {
    picker = std::make_unique<EmblemPicker>(EmblemSubject(*document, section),
                                            EmblemPicker::Words{"Section Icon", {}, "#4C6FFF"},
                                            EmblemPicker::Services{dialogs, imports(), thumbnails});
    return *picker;
  }
  std::optional<Emblem> stored() const { return document->brand().sections.at(0).emblem; }
  // As "kind symbol emoji ground file".
  QString line() const {
    const auto emblem = stored();
    if (!emblem) return "default";
    const auto kind = rawValue(emblem->kind);
    return QStringList{QString::fromLatin1(kind.data(), qsizetype(kind.size())),
                       emblem->symbolName.value_or("-"), emblem->emoji.value_or("-"),
                       emblem->colorHex.value_or("-"),
                       emblem->asset ? emblem->asset->originalName : "-"}
        .join(' ');
  }
  void chooseImage(const QString& path) {
    dialogs.answer = path;
    picker->chooseImage();
  }
  void arrive() { QVERIFY(DropImport::finish(workers, std::chrono::seconds(10))); }
};

}  // namespace

class TestEmblemPicker : public QObject {
  Q_OBJECT

 private slots:
  void eachChangeIsWritten() {
    PickerTest test;
    EmblemPicker& picker = test.open();
    QCOMPARE(test.line(), "default");
    picker.setSymbol("leaf.fill");
    QCOMPARE(test.line(), "symbol leaf.fill - #4C6FFF -");
    picker.setUseBackground(false);
    QCOMPARE(test.line(), "symbol leaf.fill - - -");
    picker.setKind(Kind::Emoji);
    QCOMPARE(test.line(), "emoji - 🎨 - -");
    picker.setEmoji("🔥🌿");
    QCOMPARE(test.line(), "emoji - 🌿 - -");
    picker.setEmoji("A👩‍👩‍👧");
    QCOMPARE(picker.emoji(), "👩‍👩‍👧");
    picker.setEmoji("");
    QCOMPARE(test.line(), "emoji - 🎨 - -");
    picker.setKind(Kind::Image);  // without a picture yet
    QCOMPARE(test.line(), "emoji - 🎨 - -");
    picker.setKind(Kind::Color);
    picker.setSwatch(QColor(1, 2, 3, 4));
    QCOMPARE(test.line(), "color - - #010203 -");
    picker.setNone();
    QCOMPARE(test.line(), "none - - - -");
    picker.useDefault();
    QCOMPARE(test.line(), "default");
  }

  void beginsWithWhatIsThereAndFollowsIt() {
    PickerTest test;
    const auto set = [&](const Emblem& emblem) {
      test.document->editSection(test.section, [&](Section& edited) { edited.emblem = emblem; });
    };
    set({Emblem::Kind::emoji, {}, "🌿", {}, {}});
    EmblemPicker& picker = test.open();
    QCOMPARE(picker.kind(), Kind::Emoji);
    QVERIFY(!picker.usesBackground());
    set({Emblem::Kind::symbol, "leaf.fill", {}, "#FF0000", {}});
    QCOMPARE(picker.symbol(), "leaf.fill");
    QCOMPARE(picker.swatch(), QColor(Qt::red));
    QVERIFY(picker.usesBackground());
    QSignalSpy finished(&picker, &SheetModel::finished);
    test.document->removeSection(test.section);
    QCoreApplication::processEvents();
    QCOMPARE(finished.size(), 1);
    picker.setSymbol("star.fill");  // nothing is left that could take it
  }

  void aPictureIsTakenWhileItIsWanted() {
    const QString file = "Mark.png";
    const Cases<std::function<void(PickerTest&)>, QString> cases{
        {"waiting", [](PickerTest&) {}, "image - - - Mark.png"},
        {"closed by then", [](PickerTest& test) { test.picker.reset(); }, "image - - - Mark.png"},
        {"another chosen", [](PickerTest& test) { test.chooseImage(test.disk.path("Two.png")); },
         "image - - - Two.png"},
        {"none wanted", [](PickerTest& test) { test.picker->useDefault(); }, "default"},
        {"a symbol instead", [](PickerTest& test) { test.picker->setSymbol("star.fill"); },
         "symbol star.fill - #4C6FFF -"},
        {"dialog cancelled",
         [](PickerTest& test) {
           test.dialogs.answer.reset();
           test.picker->chooseImage();
         },
         "image - - - Mark.png"}};
    cases.check([&](const auto& meanwhile, const QString& line) {
      PickerTest test;
      for (const char* name : {"Mark.png", "Two.png"})
        QVERIFY(writeFile(test.disk.path(name), "x"));
      test.open();
      test.chooseImage(test.disk.path(file));
      meanwhile(test);
      test.arrive();
      QCOMPARE(test.line(), line);
      QVERIFY(test.failed.isEmpty());
    });
  }

  void whatCantBeBroughtInIsTold() {
    PickerTest test;
    test.open();
    test.chooseImage(test.disk.path("missing.png"));
    test.arrive();
    QCOMPARE(test.line(), "default");
    QCOMPARE(test.failed, QStringList("missing.png"));
    QVERIFY(writeFile(test.disk.path("Mark.png"), "x"));
    test.chooseImage(test.disk.path("Mark.png"));
    test.document.reset();
    test.arrive();
    QCOMPARE(test.failed, QStringList({"missing.png", "Mark.png"}));
  }

  void symbolsAreFoundByTheirWords() {
    QCOMPARE(symbolsMatching(" ").size(), 262);
    const Cases<QString, QString> cases{{"whole", "tornado", "tornado"},
                                        {"beginning, capitals", "Torn", "tornado"},
                                        {"second half", "brush", "paintbrush.fill"},
                                        {"the picture's word", "email", "envelope.fill"},
                                        {"two words", "house lodge", "house.lodge.fill"}};
    cases.check([](const QString& query, const QString& name) {
      const QStringList found = symbolsMatching(query);
      QVERIFY(found.contains(name) && found.size() < 20);
    });
    for (const char* none : {"xyzzy", "drawn", "house tornado"})
      QVERIFY(symbolsMatching(none).isEmpty());
  }
};

QTEST_GUILESS_MAIN(TestEmblemPicker)
#include "tst_emblempicker.moc"
