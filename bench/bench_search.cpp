// A keystroke in the page's search with 10,000 tiles beside 20, results of all brands on screen,
// going from brand to brand, and the list of versions; on the offscreen platform.
#include "Grep.h"
#include "Measure.h"
#include "Ratio.h"
#include "document/Package.h"
#include "document/PackageVersions.h"
#include "model/Json.h"
#include "testing/RandomBrand.h"
#include "workspace/Items.h"
#include "workspace/TestPage.h"

#include <QElapsedTimer>

#include <cstdio>
#include <limits>
#include <simdjson.h>

using namespace tarnloft;

namespace {

double milliseconds(const std::function<void()>& work) {
  QElapsedTimer clock;
  clock.start();
  work();
  return double(clock.nsecsElapsed()) / 1e6;
}

// Names hold their number, from `others` on none.
Section namedSection(int count, int others = std::numeric_limits<int>::max()) {
  Section section = Section::create(QStringLiteral("Mixed"));
  for (int i = 0; i < count; ++i) {
    const QString number = i < others ? QString::number(i) : QStringLiteral("unknown");
    const QString name = QStringLiteral("Colour number %1 of the brand").arg(number);
    section.items.append(i % 2 == 0 ? colorItem(name) : imageItem(name, name + ".png"));
  }
  return section;
}

struct Keystrokes {
  double median;
  double longest;
};

// From the key to the frame that shows what is found.
Keystrokes keystrokes(TestPage& page) {
  std::vector<double> times;
  for (const char* number : {"173", "184", "195", "137", "148", "159"}) {
    const QString text = QLatin1String(number);
    for (int length = 1; length <= text.size(); ++length) {
      times.push_back(milliseconds([&] {
        page.workspace->search()->setText(text.left(length));
        QCoreApplication::processEvents();
        (void)page.view.grabWindow();
      }));
    }
    page.workspace->search()->setText({});
    page.settle();
    page.settle();
  }
  return {median(times), *std::max_element(times.begin(), times.end())};
}

// Of 10,000 tiles, the same are found as of 20; and pages full of others at each keystroke.
void compareKeystrokes() {
  const auto of = [](const Section& section) {
    TestPage page({section});
    return keystrokes(page);
  };
  const Keystrokes few = of(namedSection(20)), same = of(namedSection(10'000, 20));
  const Keystrokes many = of(namedSection(10'000));
  std::printf(
      "\na keystroke in \"This Brand\": %.1f ms with 20 tiles, %.1f where the same are found in "
      "10,000, %.1f where others fill the page (longest %.1f and %.1f; aim: at most 33)\n",
      few.median, same.median, many.median, same.longest, many.longest);
  printRatio("a keystroke in \"This Brand\", 10,000 tiles / 20, finding the same",
             same.median / few.median, Aim::atMost, 2);
}

void searchAll() {
  constexpr int packages = 1'000;
  TestPage page({namedSection(300)});
  for (int i = 0; i < packages; ++i)
    page.library.add(QString::number(i), RandomBrand(quint32(i)).brand(10, 30).sections);
  page.library.store->scan();
  PageSearch& search = *page.workspace->search();
  search.setScope(PageSearch::Scope::AllBrands);
  search.setText(QStringLiteral("m"));
  page.settle();
  std::vector<double> greps, searches, shows;
  for (const char* text : {"ma", "mar", "mark", "mark ", "mark 9", "mark 99", "mark 997"}) {
    const QString query = QLatin1String(text);
    greps.push_back(milliseconds([&] { grepManifests(page.library.disk.folder.path(), query); }));
    SearchHits hits;
    searches.push_back(milliseconds([&] {
      page.library.store->searchAllBrands(query,
                                          [&](SearchHits found) { hits = std::move(found); });
    }));
    shows.push_back(milliseconds([&] {
      search.results()->show(query, std::move(hits));
      (void)page.view.grabWindow();
    }));
  }
  std::printf("all brands: search %.1f ms, ripgrep %.1f ms; main thread %.1f ms, longest %.1f\n",
              median(searches), median(greps), median(shows),
              *std::max_element(shows.begin(), shows.end()));
  double all = 0, reference = 0;
  for (size_t i = 0; i < greps.size(); ++i) {
    all += searches.at(i) + shows.at(i);
    reference += greps.at(i);
  }
  printRatio("ripgrep / a keystroke in \"All Brands\", until its frame", reference / all,
             Aim::atLeast, 3);
}

void switchBrands() {
  TestPage page({namedSection(300)});
  page.library.add(QStringLiteral("Other"), {namedSection(300)});
  page.library.add(QStringLiteral("One"), {namedSection(1)});
  page.library.add(QStringLiteral("Single"), {namedSection(1)});
  page.library.store->scan();
  const auto open = [&](const QString& brand) {
    return milliseconds([&] {
      page.view.setSource(QUrl());
      page.workspace.reset();
      page.library.store->select(page.library.packagePath(brand));
      page.makeWorkspace();
      page.show();
      (void)page.view.grabWindow();
    });
  };
  std::vector<double> large, small;
  for (int round = 0; round < 12; ++round) {
    large.push_back(open(round % 2 ? "Other" : "Acme"));
    page.settle();
    small.push_back(open(round % 2 ? "One" : "Single"));
    page.settle();
  }
  std::printf("switching brands: %.1f ms to 300 tiles, %.1f ms to one\n", median(large),
              median(small));
  printRatio("switching between brands of 300 tiles / of one", median(large) / median(small),
             Aim::atMost, 2);
}

void listVersions() {
  constexpr int versions = 60;
  TestServices disk;
  const QString package = disk.path(QStringLiteral("Large.tarnloft"));
  QStringList paths;
  for (int i = 0; i < versions; ++i) {
    const VersionEnvelope envelope{disk.now + std::chrono::hours(i), std::nullopt,
                                   RandomBrand(quint32(i)).brand(10, 1'000)};
    paths << Package::versionsPath(package) + QStringLiteral("/%1.json").arg(i);
    QByteArray json = "{\"brand\":" + *encode(envelope.brand) + ",\"createdAt\":\"" +
                      QByteArray::fromStdString(iso8601(envelope.createdAt)) + "\"}";
    if (!writeFile(paths.last(), json)) std::exit(1);
  }
  std::vector<double> lists, reads;
  for (int round = 0; round < 5; ++round) {
    lists.push_back(milliseconds([&] {
      if (PackageVersions(disk.files, package).list().size() != versions) std::exit(1);
    }));
    reads.push_back(milliseconds([&] {
      simdjson::dom::parser parser;
      for (const QString& path : paths) {
        QByteArray json = contentOf(path);
        json.reserve(json.size() + jsonPadding);
        if (parser.parse(json.constData(), size_t(json.size()), false).error()) std::exit(1);
      }
    }));
  }
  std::printf("%d versions of 10,000 items: listed in %.0f ms, read and parsed in %.0f ms\n",
              versions, median(lists), median(reads));
  printRatio("listing versions / reading and bare parse of their files",
             median(lists) / median(reads), Aim::atMost, 2);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  compareKeystrokes();
  searchAll();
  switchBrands();
  listVersions();
}
