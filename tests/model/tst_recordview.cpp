#include "model/Json.h"
#include "model/RecordView.h"
#include "model/Utf8.h"
#include "testing/RandomBrand.h"

#include <QTest>

using namespace tarnloft;

namespace {

// Whether each member of a view, and of all that is inside of it, is that of the decoded record.
bool same(std::string_view utf8, const QString& text) {
  return textFromUtf8(utf8) == text && utf8 == text.toStdString();
}
template <class T>
bool same(const T& value, const T& decoded) {
  return value == decoded;
}
template <Record R>
bool same(const RecordView<R>& view, const R& record);
bool same(const PayloadView& view, const ItemPayload& payload);
template <class View, class T>
requires(!std::same_as<View, T>) bool same(const std::optional<View>& view,
                                           const std::optional<T>& decoded) {
  return view.has_value() == decoded.has_value() && (!view || same(*view, *decoded));
}
template <class T>
bool same(const ListView<T>& view, const auto& list) {
  auto decoded = list.begin();
  for (const auto& entry : view) {
    if (decoded == list.end() || !same(entry, *decoded)) return false;
    ++decoded;
  }
  return decoded == list.end();
}
template <Record R, size_t... Places>
bool sameMembers(const RecordView<R>& view, const R& record, std::index_sequence<Places...>) {
  const auto sameAt = [&](auto place) {
    constexpr auto member = fieldAt<R, place>.member;
    return same(fieldOf<member>(view), record.*member) && valueOf<member>(view) == record.*member;
  };
  return (sameAt(std::integral_constant<size_t, Places>()) && ...);
}
template <Record R>
bool same(const RecordView<R>& view, const R& record) {
  return sameMembers(view, record, std::make_index_sequence<fieldCount<R>>());
}
bool same(const PayloadView& view, const ItemPayload& payload) {
  bool good = false;
  view.visit([&](size_t kind, const auto& content) {
    std::visit(
        [&](const auto& decoded) {
          if constexpr (FormOf<std::remove_cvref_t<decltype(content)>,
                               std::remove_cvref_t<decltype(decoded)>>) {
            good = kind == payload.index() && same(content, decoded);
          }
        },
        payload);
  });
  return good;
}

enum class Verdict { accepted, refused, differ };

Verdict verdictOf(const QByteArray& json) {
  const auto decoded = decode<Brand>(json);
  const auto view = RecordView<Brand>::parse(json);
  if (decoded.has_value() != view.has_value()) return Verdict::differ;
  if (decoded) return same(*view, *decoded) ? Verdict::accepted : Verdict::differ;
  return view.error() == decoded.error() ? Verdict::refused : Verdict::differ;
}

// Changes a manifest line by line, each of which holds one key or one bracket, so that most of what
// comes out is still JSON: other values, other and repeated keys, lines gone.
class Mutator {
 public:
  explicit Mutator(quint32 seed) : random_(seed) {}

  QByteArray mutated(const QByteArray& json) {
    QList<QByteArray> lines = json.split('\n');
    for (int count = random_.bounded(2); count >= 0; --count) mutate(lines);
    return lines.join('\n');
  }

 private:
  void mutate(QList<QByteArray>& lines) {
    const int at = random_.bounded(int(lines.size()));
    QByteArray& line = lines[at];
    const auto colon = line.indexOf(" : ");
    const bool scalar = colon > 0 && !line.endsWith('{') && !line.endsWith('[');
    const int choice = random_.bounded(6);
    if (choice == 0 && scalar) lines.insert(at, line.endsWith(',') ? line : line + ',');
    if (choice == 1 && scalar) lines.insert(at, keyOf(line) + " : " + anyValue() + ',');
    if (choice == 2 && colon > 0) line = "\"" + anyKey() + "\"" + line.mid(colon);
    if (choice == 3 && line.endsWith(',')) lines.removeAt(at);
    if (choice >= 4 && scalar) {
      line = keyOf(line) + " : " + anyValue() + (line.endsWith(',') ? "," : "");
    }
  }
  static QByteArray keyOf(const QByteArray& line) { return line.left(line.indexOf(" : ")); }

  QByteArray anyKey() { return any("id name hex value asset color text items kind x"); }
  QByteArray anyValue() {
    return any(
        R"(null true 1 1.0 1.5 -1e400 9223372036854775808 123456789012345678901 "" "\u00fc" [] {})"
        R"( "do" "primary" "2026-03-01T09:30:00Z" "2026-03-01T09:30:00.5Z")"
        R"( "8F0C3E5A-6B1D-4C44-9A57-0D3C2F1B7E21" {"text":{"body":"x"}})"
        R"( {"text":{"body":1},"text":{"body":"x"}} {"text":{"body":"x"},"code":1})"
        R"( {"value":{"hex":"x"},"value":{"hex":"y"}})");
  }
  // One of the words.
  QByteArray any(const QByteArray& words) {
    const QList<QByteArray> choices = words.split(' ');
    return choices.at(random_.bounded(int(choices.size())));
  }

  QRandomGenerator random_;
};

}  // namespace

class TestRecordView : public QObject {
  Q_OBJECT

 private slots:
  void agreesWithDecodingOverMutatedManifests() {
    int accepted = 0, refused = 0;
    for (quint32 seed = 0; seed < 40; ++seed) {
      RandomBrand random(seed);
      const QByteArray json = *encode(random.brand(2, 6));
      QCOMPARE(verdictOf(json), Verdict::accepted);
      Mutator mutator(seed);
      for (int i = 0; i < 200; ++i) {
        const QByteArray mutated = mutator.mutated(json);
        const Verdict verdict = verdictOf(mutated);
        QVERIFY2(verdict != Verdict::differ, mutated);
        ++(verdict == Verdict::accepted ? accepted : refused);
      }
    }
    QVERIFY(accepted > 1000);
    QVERIFY(refused > 1000);
  }
};

QTEST_APPLESS_MAIN(TestRecordView)
#include "tst_recordview.moc"
