#include "model/FileName.h"
#include "model/SearchText.h"
#include "testing/Cases.h"

#include <QTest>

using namespace tarnloft;

class TestRecords : public QObject {
  Q_OBJECT

 private slots:
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
    });
  }
};

QTEST_APPLESS_MAIN(TestRecords)
#include "tst_records.moc"
