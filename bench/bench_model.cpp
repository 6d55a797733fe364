// Reading, writing and copying a brand of 10,000 items, each beside its reference.
#include "Ratio.h"
#include "model/Json.h"
#include "model/ListDifference.h"
#include "testing/RandomBrand.h"

#include <QJsonDocument>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <map>
#include <simdjson.h>
#include <string>

using namespace tarnloft;

namespace {

const Brand& spreadBrand() {
  static const Brand brand = RandomBrand(1).brand(20, 500);
  return brand;
}

const Brand& oneSectionBrand() {
  static const Brand brand = RandomBrand(1).brand(1, 10'000);
  return brand;
}

const QByteArray& manifest() {
  static const QByteArray json = [] {
    QByteArray text = *encode(spreadBrand());
    text.reserve(text.size() + jsonPadding);
    return text;
  }();
  return json;
}

// A copy that shares no storage: the way through text and back is the same for every record.
QString deep(const QString& text) { return QString(text.constData(), text.size()); }
template <class T>
T deep(const T& value) {
  return value;
}
template <class T>
std::optional<T> deep(const std::optional<T>& value);
template <class T>
QList<T> deep(const QList<T>& list);
template <class T>
SharedList<T> deep(const SharedList<T>& list);
ItemPayload deep(const ItemPayload& payload);
template <Record R>
R deep(const R& record) {
  R copy{};
  forEachField<R>([&](const auto& field) { copy.*(field.member) = deep(record.*(field.member)); });
  return copy;
}
template <class T>
std::optional<T> deep(const std::optional<T>& value) {
  return value ? std::optional<T>(deep(*value)) : std::nullopt;
}
template <class T>
QList<T> deep(const QList<T>& list) {
  QList<T> copy;
  copy.reserve(list.size());
  for (const T& element : list) copy << deep(element);
  return copy;
}
template <class T>
SharedList<T> deep(const SharedList<T>& list) {
  SharedList<T> copy;
  for (const T& element : list) copy.append(deep(element));
  return copy;
}
ItemPayload deep(const ItemPayload& payload) {
  return std::visit([](const auto& value) { return ItemPayload(deep(value)); }, payload);
}

void decodeOurs(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(decode<Brand>(manifest()));
}
void decodeBareParse(benchmark::State& state) {
  simdjson::dom::parser parser;
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        parser.parse(manifest().constData(), size_t(manifest().size()), false).error());
  }
}
void decodeQt(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(QJsonDocument::fromJson(manifest()));
}
void encodeOurs(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(encode(spreadBrand()));
}
void encodeQt(benchmark::State& state) {
  const QJsonDocument document = QJsonDocument::fromJson(manifest());
  for (auto _ : state) benchmark::DoNotOptimize(document.toJson());
}
void copyAndChange(benchmark::State& state, const Brand& brand) {
  for (auto _ : state) {
    Brand copy = brand;
    Section& section = copy.sections.last();
    section.items[section.items.size() / 2].imageBackground = ImageBackground::dark;
    benchmark::DoNotOptimize(copy);
  }
}
void copyDeeply(benchmark::State& state, const Brand& brand) {
  for (auto _ : state) {
    Brand copy = deep(brand);
    benchmark::DoNotOptimize(copy);
  }
}

SharedList<Item> oneMoved() {
  SharedList<Item> items = oneSectionBrand().sections.first().items;
  const Item moved = items.takeAt(2'000);
  items.insert(7'000, moved);
  return items;
}
void differenceOfOneMove(benchmark::State& state) {
  const SharedList<Item> before = oneSectionBrand().sections.first().items, after = oneMoved();
  for (auto _ : state) benchmark::DoNotOptimize(listDifference(before, after));
}
void oneWalk(benchmark::State& state) {
  const SharedList<Item> before = oneSectionBrand().sections.first().items, after = oneMoved();
  for (auto _ : state) {
    qsizetype same = 0;
    auto other = after.begin();
    for (const Item& item : before) same += item.id == (other++)->id ? 1 : 0;
    benchmark::DoNotOptimize(same);
  }
}

// Keeps each benchmark's median.
class Collector : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.aggregate_name == "median")
        medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
  }
  double ratio(const char* a, const char* b) const { return medians.at(a) / medians.at(b); }

  std::map<std::string, double> medians;
};

void add(const char* name, const std::function<void(benchmark::State&)>& body) {
  benchmark::RegisterBenchmark(name, body)
      ->Unit(benchmark::kMicrosecond)
      ->Repetitions(15)
      ->MinTime(0.1)
      ->ReportAggregatesOnly(true);
}

}  // namespace

int main(int argc, char** argv) {
  if (deep(spreadBrand()) != spreadBrand()) return 1;
  add("decode", decodeOurs);
  add("decode: bare parse", decodeBareParse);
  add("decode: Qt's reader", decodeQt);
  add("encode", encodeOurs);
  add("encode: Qt's writer", encodeQt);
  add("copy, 20 sections", [](auto& state) { copyAndChange(state, spreadBrand()); });
  add("copy deeply, 20 sections", [](auto& state) { copyDeeply(state, spreadBrand()); });
  add("copy, 1 section", [](auto& state) { copyAndChange(state, oneSectionBrand()); });
  add("copy deeply, 1 section", [](auto& state) { copyDeeply(state, oneSectionBrand()); });
  add("difference of one move", differenceOfOneMove);
  add("one walk over both lists", oneWalk);
  // Interleaved, so that a busy moment of the machine falls on a figure and its reference alike.
  std::vector<char*> arguments(argv, argv + argc);
  std::string interleave = "--benchmark_enable_random_interleaving=true";
  arguments.insert(arguments.begin() + 1, interleave.data());
  int count = int(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  std::printf("A brand of 10,000 items, a manifest of %.1f MB\n", double(manifest().size()) / 1e6);
  Collector results;
  benchmark::RunSpecifiedBenchmarks(&results);
  std::printf("\n");
  printRatio("decode / the bare parse of the same bytes",
             results.ratio("decode", "decode: bare parse"), Aim::atMost, 6);
  printRatio("Qt's reader / decode", results.ratio("decode: Qt's reader", "decode"), Aim::atLeast,
             3);
  printRatio("Qt's writer / encode", results.ratio("encode: Qt's writer", "encode"), Aim::atLeast,
             5);
  printRatio("deep copy / copy and one change, 20 sections of 500",
             results.ratio("copy deeply, 20 sections", "copy, 20 sections"), Aim::atLeast, 50);
  printRatio("deep copy / copy and one change, one section of 10,000",
             results.ratio("copy deeply, 1 section", "copy, 1 section"), Aim::atLeast, 50);
  printRatio("difference of one move among 10,000 / one walk over both lists",
             results.ratio("difference of one move", "one walk over both lists"), Aim::atMost, 10);
}
