#include "model/Json.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"
#include "testing/TestServices.h"

#include <QJsonDocument>
#include <QTest>

using namespace tarnloft;

namespace {

// With straight quotes for the others.
QByteArray json(QByteArray text) { return text.replace('\'', '"'); }
QByteArray itemWith(const QByteArray& payload) {
  return json("{'id':'8F0C3E5A-6B1D-4C44-9A57-0D3C2F1B7E21','payload':" + payload + "}");
}

}  // namespace

class TestJson : public QObject {
  Q_OBJECT

 private slots:
  void randomBrandsSurvive() {
    RandomBrand random(3);
    for (int i = 0; i < 60; ++i) {
      const Brand brand = random.brand(random.below(4), random.below(90));
      const auto json = encode(brand);
      QVERIFY(json);
      const auto read = decode<Brand>(*json);
      QVERIFY2(read, qPrintable(read ? QString() : read.error().message));
      QVERIFY(*read == brand);
      QCOMPARE(*encode(*read), *json);
    }
  }

  void refusesWhatHasNoWrittenForm() {
    QCOMPARE(encode(GradientValue{{}, qInf(), {}}).error().kind, ErrorKind::unwritable);
    QVERIFY(!encode(GradientValue{{GradientStop{{}, {}, qQNaN()}}, 0, {}}));
    Brand brand = Brand::create("x");
    brand.createdAt = Timestamp(std::chrono::seconds(-62167219201));  // the second before year 0
    QCOMPARE(encode(brand).error().kind, ErrorKind::unwritable);
    brand.createdAt += std::chrono::seconds(1);
    QVERIFY(decode<Brand>(*encode(brand)));
  }

  void readsFromTheMiddleOfABuffer() {
    QByteArray bytes(300, ' ');
    bytes += "{\"hex\":\"#FFF\"}";
    bytes.squeeze();
    bytes.remove(0, 300);  // the room is in front now, not behind
    QCOMPARE(decode<ColorValue>(bytes)->hex, "#FFF");
    QCOMPARE(decode<ColorValue>(QByteArray::fromRawData("{\"hex\":\"#000\"}  ", 14))->hex, "#000");
  }

  void takesOldAndForeignFiles() {
    const QByteArray plain = json("{'hex':'#FFF'}"), digits = "12345678901234567890123";
    const Cases<QByteArray, QByteArray> cases{
        {"the last of a repeated key", json("{'hex':'#000','hex':'#FFF'}"), plain},
        {"digits in a string", json("{'hex':'\\' " + digits + "','y':1234567" + digits + "}"),
         json("{'hex':'\\' " + digits + "'}")}};
    cases.check([](const QByteArray& given, const QByteArray& same) {
      const auto color = decode<ColorValue>(given);
      QVERIFY2(color, qPrintable(color ? QString() : color.error().message));
      QCOMPARE(*color, *decode<ColorValue>(same));
      QCOMPARE(color->hex, QJsonDocument::fromJson(same)[u"hex"].toString());
    });
  }

  void refusesAndNamesThePlace() {
    const Cases<QByteArray, QString> cases{
        {"missing", itemWith("{'color':{'value':{'name':'x'}}}"),
         "payload.color.value.hex: missing"},
        {"fraction", itemWith("{'header':{'text':'x','level':1.5}}"),
         "payload.header.level: expected an integer"},
        {"two known keys", itemWith("{'text':{'body':''},'code':null}"),
         "payload: Invalid number of keys found, expected one."},
        {"unknown role",
         itemWith(
             R"({"logo":{"value":{"name":"","variants":[{"id":"8F0C3E5A-6B1D-4C44-9A57-0D3C2F1B7E21","asset":{"filename":"","originalName":""},"role":"hero"}]}}})"),
         "payload.logo.value.variants[0].role: unknown value"}};
    cases.check([&](const QByteArray& json, const QString& message) {
      const auto read = decode<Item>(json);
      QVERIFY(!read);
      QVERIFY2(read.error().message.startsWith(message), qPrintable(read.error().message));
    });
  }

  void readsDates() {
    const QList<QPair<const char*, const char*>> dates{
        {"2026-03-01T09:30:00Z", "2026-03-01T09:30:00Z"},
        {"2024-02-29T23:59:59Z", "2024-02-29T23:59:59Z"},
        {"2026-03-01T00:30:00+01:30", "2026-02-28T23:00:00Z"},
        {"2026-03-01T00:30:00-01:30", "2026-03-01T02:00:00Z"}};
    for (const auto& [text, same] : dates) QCOMPARE(iso8601(*fromIso8601(text)), std::string(same));
    for (const char* bad :
         {"2026-03-01T09:30:00.5Z", "2026-02-29T09:30:00Z", "2026-03-01 09:30:00Z",
          "0000-01-01T00:00:00+01:00", "9999-12-31T23:59:59-01:00", "2026-03-01T24:00:00Z",
          "2026-03-01T09:30:60Z", "2026-03-01T09:30:00", "2026-03-01", "", "2026-3-1T09:30:00Z",
          "2026-03-01T09:30:00+0130"}) {
      QVERIFY2(!fromIso8601(bad), bad);
    }
  }
};

QTEST_APPLESS_MAIN(TestJson)
#include "tst_json.moc"
