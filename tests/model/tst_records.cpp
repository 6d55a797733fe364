#include "model/FileName.h"
#include "model/Item.h"
#include "model/SearchText.h"
#include "testing/Cases.h"

#include <QTest>

using namespace tarnloft;

namespace {

QString str(const char* text) { return QString::fromUtf8(text); }
Item color(const char* hex, std::optional<QString> name = {}, std::optional<QString> spot = {}) {
  return Item::create(ColorPayload{{str(hex), std::move(name), std::move(spot)}});
}
Item logo(LogoRole role) {
  return Item::create(LogoPayload{{str("Set"), {LogoVariant{{}, {}, role, {}}}}});
}

}  // namespace

class TestRecords : public QObject {
  Q_OBJECT

 private slots:
  void findsItems() {
    const Cases<QString, bool> cases{{"part of the hex", "#1234", true},
                                     {"type, any case", "cOLOR", true},
                                     {"spot", "pms 021", true},
                                     {"name, beyond ASCII", "ÜBER", true},
                                     {"composed and decomposed", "u\u0308berbl", true},
                                     {"blanks count", " 123456", false},
                                     {"nothing finds nothing", "", false}};
    cases.check([&](const QString& query, bool found) {
      QCOMPARE(color("#123456", str("Überblau"), str("PMS 021 C")).matchesSearch(query), found);
    });
    QVERIFY(!logo(LogoRole::mono).matchesSearch(str("wordmark")));
    QVERIFY(logo(LogoRole::mono).matchesSearch(str("monochrome")));
  }

  void foldsTextsInTheUsersLanguage() {
    const Cases<QString, QString, QString> cases{
        {"nothing", "", "", ""},
        {"ASCII", "AZ az @[`{ 09", "az az @[`{ 09", "az az @[`{ 09"},
        {"letter I", "ICON", "icon", "ıcon"},
        {"beyond ASCII", "Straße ÜBER", "straße über", "straße über"},
        {"decomposed", "U\u0308", "ü", "ü"},
        {"U+FEFF in front", "\uFEFFX", "\uFEFFx", "\uFEFFx"}};
    cases.check([](const QString& text, const QString& english, const QString& turkish) {
      for (const auto& [language, expected] :
           {std::pair(QLocale::English, english), std::pair(QLocale::Turkish, turkish)}) {
        QLocale::setDefault(QLocale(language));
        const SearchFolding folding;
        QLocale::setDefault(QLocale::system());
        std::string ofText, ofUtf8;
        folding.append(text, ofText);
        folding.append(text.toStdString(), ofUtf8);
        QCOMPARE(folding.folded(text), expected);
        QCOMPARE(ofText, expected.toStdString());
        QCOMPARE(ofUtf8, ofText);
      }
    });
  }

  void splitsExtensions() {
    const Cases<QString, QString, QString> cases{{"plain", "Mark.PNG", "Mark", "PNG"},
                                                 {"two", "a.tar.gz", "a.tar", "gz"},
                                                 {"hidden", ".png", ".png", ""},
                                                 {"dot at the end", "Mark.", "Mark.", ""},
                                                 {"dot in a folder", "a.b/c", "a.b/c", ""}};
    cases.check([&](const QString& path, const QString& base, const QString& extension) {
      QCOMPARE(withoutPathExtension(path), base);
      QCOMPARE(pathExtension(path), extension);
      const std::string utf8 = path.toStdString();
      QCOMPARE(QString::fromStdString(std::string(withoutPathExtension(utf8))), base);
    });
  }
};

QTEST_APPLESS_MAIN(TestRecords)
#include "tst_records.moc"
