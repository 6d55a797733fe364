#include "model/Json.h"
#include "testing/Cases.h"
#include "testing/RandomBrand.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include <cmath>
#include <cstring>

using namespace tarnloft;

namespace {

const QByteArray package = R"({
  "accentHex" : "#4C6FFF",
  "createdAt" : "2026-03-01T09:30:00Z",
  "id" : "2A1F6C3E-9B4D-4E7A-8F10-3C5D7E9A1B2C",
  "name" : "Acme \/ Söhne\t\u0001 \"x\" \\",
  "schemaVersion" : 1,
  "sections" : [
    {
      "emblem" : {
        "emoji" : "🏔",
        "kind" : "emoji"
      },
      "id" : "7D3B1A90-5C2E-4F6D-A1B3-9E8F7D6C5B4A",
      "items" : [
        {
          "id" : "8F0C3E5A-6B1D-4C44-9A57-0D3C2F1B7E21",
          "notes" : [
            {
              "id" : "C4D1E2F3-0A1B-4C2D-8E3F-5A6B7C8D9E0F",
              "kind" : "do",
              "text" : "Use for primary brand moments."
            }
          ],
          "payload" : {
            "gradient" : {
              "value" : {
                "angle" : 90,
                "stops" : [
                  {
                    "hex" : "#123456",
                    "id" : "E1D2C3B4-A596-4877-8695-A4B3C2D1E0F1",
                    "location" : 0.5
                  }
                ]
              }
            }
          }
        }
      ],
      "name" : "Colors"
    },
    {
      "id" : "B5A49382-7160-4F5E-8D7C-6B5A49382716",
      "items" : [

      ],
      "name" : "Logos"
    }
  ],
  "updatedAt" : "2026-03-01T09:41:12Z"
})";

const QByteArray item = R"({"id":"8F0C3E5A-6B1D-4C44-9A57-0D3C2F1B7E21","payload":%1})";
QByteArray itemWith(const QByteArray& payload) { return QByteArray(item).replace("%1", payload); }

}  // namespace

class TestJson : public QObject {
  Q_OBJECT

 private slots:
  void keepsTheLayoutOfAWholePackage() {
    const auto brand = decode<Brand>(package);
    QVERIFY2(brand, qPrintable(brand ? QString() : brand.error().message));
    QCOMPARE(brand->name, QString::fromUtf8("Acme / Söhne\t\u0001 \"x\" \\"));
    QCOMPARE(*encode(*brand), package);
    const QByteArray compact = QJsonDocument::fromJson(package).toJson(QJsonDocument::Compact);
    QCOMPARE(*encode(*decode<Brand>(compact)), package);
  }

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

  void otherReadersAgree() {
    RandomBrand random(4);
    const Brand brand = random.brand(5, 60);
    QJsonParseError problem;
    const auto document = QJsonDocument::fromJson(*encode(brand), &problem);
    QCOMPARE(problem.error, QJsonParseError::NoError);
    QCOMPARE(document[u"name"].toString(), brand.name);
    const auto sections = document[u"sections"];
    for (qsizetype s = 0; s < brand.sections.size(); ++s) {
      for (qsizetype i = 0; i < brand.sections.at(s).items.size(); ++i) {
        const auto* code = std::get_if<CodePayload>(&brand.sections.at(s).items.at(i).payload);
        if (!code) continue;
        const auto read = sections[s][u"items"][i][u"payload"][u"code"][u"value"];
        QCOMPARE(read[u"snippet"].toString(), code->value.snippet);
      }
    }
  }

  void numbersSurviveInShortestForm() {
    const QList<QPair<QByteArray, QByteArray>> numbers{
        {"1.0", "1"},
        {"100000", "100000"},
        {"0.1", "0.1"},
        {"1e-5", "1e-05"},
        {"0.0001", "0.0001"},
        {"1E16", "1e+16"},
        {"123456789012345680", "1.2345678901234568e+17"},
        {"-0.0", "0"},
        {"-12.50", "-12.5"},
        {"9007199254740993", "9007199254740992"},
        {"100000000000000000000", "1e+20"}};
    for (const auto& [given, written] : numbers) {
      const auto gradient = decode<GradientValue>("{\"stops\":[],\"angle\":" + given + "}");
      QVERIFY2(gradient, given);
      QVERIFY2(encode(*gradient)->contains("\"angle\" : " + written + ","), given);
    }
  }

  void randomNumbersSurvive() {
    QRandomGenerator random(5);
    for (int i = 0; i < 20000; ++i) {
      const quint64 bits = random.generate64();
      GradientValue gradient;
      std::memcpy(&gradient.angle, &bits, sizeof bits);
      if (!std::isfinite(gradient.angle)) continue;
      const auto read = decode<GradientValue>(*encode(gradient));
      QVERIFY(read);
      QCOMPARE(read->angle, gradient.angle);
    }
  }

  void refusesNumbersThatAreNotFinite() {
    QCOMPARE(encode(GradientValue{{}, qInf(), {}}).error().kind, ErrorKind::unwritable);
    QVERIFY(!encode(GradientValue{{GradientStop{{}, {}, qQNaN()}}, 0, {}}));
  }

  void refusesDatesWithoutWrittenForm() {
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
    const Cases<QByteArray, QByteArray> cases{
        {"without optional keys", QByteArray(R"({"hex":"#FFF"})"), QByteArray(R"({"hex":"#FFF"})")},
        {"null for none", QByteArray(R"({"hex":"#FFF","name":null})"),
         QByteArray(R"({"hex":"#FFF"})")},
        {"unknown keys",
         QByteArray(R"({"x":[{}],"hex":"#FFF","y":123456789012345678901234567890})"),
         QByteArray(R"({"hex":"#FFF"})")},
        {"the last of a repeated key", QByteArray(R"({"hex":"#000","hex":"#FFF"})"),
         QByteArray(R"({"hex":"#FFF"})")},
        {"a slash in both forms", QByteArray(R"({"hex":"a\/b"})"), QByteArray(R"({"hex":"a/b"})")},
        {"U+FEFF in front of a text", "{\"hex\":\"\xEF\xBB\xBF\xEF\xBB\xBFx\"}",
         QByteArray(R"({"hex":"\ufeff\ufeffx"})")},
        {"digits in a string",
         QByteArray(R"({"hex":"\" 12345678901234567890123","y":123456789012345678901234567890})"),
         QByteArray(R"({"hex":"\" 12345678901234567890123"})")}};
    cases.check([&](const QByteArray& json, const QByteArray& same) {
      const auto color = decode<ColorValue>(json);
      QVERIFY2(color, qPrintable(color ? QString() : color.error().message));
      QCOMPARE(*color, *decode<ColorValue>(same));
      const QString hex = QJsonDocument::fromJson(same)[u"hex"].toString();
      QCOMPARE(color->hex, hex);
    });
  }

  void refusesAndNamesThePlace() {
    const Cases<QByteArray, QString> cases{
        {"empty", "", "document: "},
        {"mark", "\xEF\xBB\xBF" + itemWith("{}"), "document: begins with a byte-order mark"},
        {"list", "[]", "document: expected an object"},
        {"missing", itemWith(R"({"color":{"value":{"name":"x"}}})"),
         "payload.color.value.hex: missing"},
        {"null for required", itemWith(R"({"text":{"body":null}})"),
         "payload.text.body: expected a string"},
        {"wrong type", itemWith(R"({"header":{"text":"x","level":"1"}})"),
         "payload.header.level: expected an integer"},
        {"fraction", itemWith(R"({"header":{"text":"x","level":1.5}})"),
         "payload.header.level: expected an integer"},
        {"too large", itemWith(R"({"header":{"text":"x","level":9223372036854775808}})"),
         "payload.header.level: expected an integer"},
        {"no known key", itemWith(R"({"sound":{}})"),
         "payload: Invalid number of keys found, expected one."},
        {"two known keys", itemWith(R"({"text":{"body":""},"code":null})"),
         "payload: Invalid number of keys found, expected one."},
        {"unknown role",
         itemWith(
             R"({"logo":{"value":{"name":"","variants":[{"id":"8F0C3E5A-6B1D-4C44-9A57-0D3C2F1B7E21","asset":{"filename":"","originalName":""},"role":"hero"}]}}})"),
         "payload.logo.value.variants[0].role: unknown value"},
        {"bad id", R"({"id":"8F0C3E5A-6B1D-4C44-9A57-0D3C2F1B7E2","payload":{"text":{"body":""}}})",
         "id: expected a UUID"},
        {"id in braces",
         R"({"id":"{8F0C3E5A-6B1D-4C44-9A57-0D3C2F1B7E21}","payload":{"text":{"body":""}}})",
         "id: expected a UUID"},
        {"truncated", itemWith("{}").chopped(1), "document: "},
        {"bad UTF-8", itemWith("{\"text\":{\"body\":\"\xC3\"}}"), "document: "},
        {"lone surrogate", itemWith(R"({"text":{"body":"\ud800"}})"), "document: "},
        {"long number", itemWith("{\"text\":" + QByteArray(100, '9') + "}"),
         "payload.text: expected an object"},
        {"number beyond all", itemWith("{\"text\":" + QByteArray(400, '9') + "}"), "document: "},
        {"deep", QByteArray(100000, '['), "document: "},
        {"deep objects", QByteArray("{\"a\":").repeated(5000), "document: "}};
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
