#include "shell/alerts/Alerts.h"

#include "model/ShownText.h"

#include <utility>

namespace tarnloft {
namespace {

constexpr qsizetype mostOfChanges = 400;  // characters; the settings show all of it

// Reasons come from many places, the system among them, with and without a full stop.
QString sentence(const QString& text) {
  const bool hasEnd = text.isEmpty() || QStringLiteral(".!?…”").contains(text.back());
  return hasEnd ? text : text + QLatin1Char('.');
}

Question::Words updateWords(const UpdaterViewModel& updater) {
  if (updater.news() == UpdaterViewModel::News::installed) {
    return {.title = QStringLiteral("A new version of Tarn Loft is installed"),
            .message = QStringLiteral("It runs when you relaunch. All of your work is saved."),
            .confirmText = QStringLiteral("Relaunch"),
            .cancelText = QStringLiteral("Later")};
  }
  return {.title = QStringLiteral("Tarn Loft %1 is available").arg(updater.version()),
          .message = shownText(updater.changes(), mostOfChanges),
          .confirmText = QStringLiteral("Install"),
          .cancelText = QStringLiteral("Later")};
}

QString quitTitle(const QStringList& brands) {
  return brands.size() == 1
             ? QStringLiteral("Changes to “%1” aren't saved").arg(brands.first())
             : QStringLiteral("Changes to %1 brands aren't saved").arg(brands.size());
}

}  // namespace

Alerts::Alerts(LibraryStore& library, SheetHost& sheets, UpdaterViewModel* updater, QObject* parent)
    : QObject(parent), library_(library), sheets_(sheets), updater_(updater) {
  const LibraryStore* const store = &library;
  connect(store, &LibraryStore::unsavedChanged, this, &Alerts::saveProblemChanged);
  connect(store, &LibraryStore::unsavedChanged, this, &Alerts::renewQuitQuestion);
  connect(store, &LibraryStore::openDocumentChanged, this, &Alerts::saveProblemChanged);
  connect(store, &LibraryStore::libraryProblemChanged, this, &Alerts::libraryProblemChanged);
  connect(store, &LibraryStore::noticesChanged, this, &Alerts::showNotice);
  connect(store, &LibraryStore::trashRefused, this, &Alerts::tellRefused);
  connect(store, &LibraryStore::endedOpeningChanged, this, &Alerts::askAboutOpening);
  connect(store, &LibraryStore::openDocumentChanged, this, &Alerts::plainnessChanged);
  connect(store, &LibraryStore::plainChanged, this, &Alerts::plainnessChanged);
  showNotice();  // of before this window
  askAboutOpening();
  if (!updater) return;
  connect(updater, &UpdaterViewModel::newsChanged, this, &Alerts::askAboutUpdate);
  askAboutUpdate();
}

QString Alerts::saveProblem() const {
  const BrandDocument* const open = library_.openDocument();
  return open ? open->saveProblem() : QString();
}

QString Alerts::plainness() const {
  return library_.isPlain() ? QStringLiteral(
                                  "Shown without its fonts and pictures, as the program ended when "
                                  "this brand was opened.")
                            : QString();
}

void Alerts::askAboutOpening() {
  const BrandSummary* const brand = library_.endedOpening();
  if (opening_ || !brand) return;
  const Question::Words words{
      .title = QStringLiteral("Tarn Loft ended while “%1” was being opened")
                   .arg(shownText(brand->name, mostInTitle)),
      .message = QStringLiteral("One of its fonts or pictures may be the cause. Open the brand "
                                "without them, or leave it closed; nothing in it is changed."),
      .confirmText = QStringLiteral("Open Without Fonts and Pictures"),
      .cancelText = QStringLiteral("Leave Closed")};
  opening_ = sheets_.show(std::make_unique<Question>(words, [this](Question::Answer answer) {
    using Ended = LibraryStore::EndedOpening;
    library_.answerEndedOpening(answer == Question::Answer::Confirmed ? Ended::open : Ended::leave);
  }));
}

QString Alerts::libraryProblem() const { return sentence(library_.libraryProblem()); }

// One after the other; the library keeps them until each has been seen.
void Alerts::showNotice() {
  if (notice_ || library_.notices().isEmpty()) return;
  const auto& [title, message] = library_.notices().first();
  notice_ = sheets_.show(std::make_unique<Question>(
      Question::Words{.title = title, .message = sentence(message), .cancelText = {}},
      [this](Question::Answer) {
        notice_.clear();
        library_.dismissNotice();
      }));
}

void Alerts::tellRefused(const BrandSummary& brand, const QString& reason) {
  const Question::Words words{
      .title = QStringLiteral("“%1” can't be moved to the Trash").arg(brand.name),
      .message = sentence(reason) + QStringLiteral(" The brand stays in the library."),
      .confirmText = QStringLiteral("Delete Immediately…"),
      .destructive = true};
  sheets_.show(std::make_unique<Question>(words, [this, brand](Question::Answer answer) {
    if (answer == Question::Answer::Confirmed) askDeleteImmediately(brand);
  }));
}

void Alerts::askDeleteImmediately(const BrandSummary& brand) {
  const Question::Words words{
      .title = QStringLiteral("Delete “%1” immediately?").arg(brand.name),
      .message =
          QStringLiteral("The brand and all of its files are gone then. You can't undo this."),
      .confirmText = QStringLiteral("Delete"),
      .destructive = true,
      .cancelIsDefault = true};
  sheets_.show(std::make_unique<Question>(words, [this, brand](Question::Answer answer) {
    if (answer == Question::Answer::Confirmed) library_.deleteBrandImmediately(brand);
  }));
}

void Alerts::askToQuit() {
  if (quit_) return;
  quit_ = sheets_.interrupt(std::make_unique<Question>(
      Question::Words{.title = quitTitle(library_.unsavedBrands()),
                      .message = QStringLiteral(
                          "They couldn't be written to the disk. If you quit now, they are lost."),
                      .confirmText = QStringLiteral("Quit Anyway"),
                      .alternativeText = QStringLiteral("Try Again"),
                      .destructive = true,
                      .cancelIsDefault = true},
      [this](Question::Answer answer) { quitAnswered(answer); }));
}

void Alerts::quitAnswered(Question::Answer answer) {
  quit_.clear();
  if (answer == Question::Answer::Alternative) retrySave();
  if (answer == Question::Answer::Confirmed) emit quitConfirmed();
}

// What is asked about may have been answered in the settings; then the question goes.
void Alerts::askAboutUpdate() {
  using News = UpdaterViewModel::News;
  const int number = ++updatesAsked_;
  if (update_) std::exchange(update_, nullptr)->give(Question::Answer::Dismissed);
  const News news = updater_->news();
  if (news == News::none) return;
  const auto answered = [this, news, number](Question::Answer answer) {
    if (number != updatesAsked_) return;
    update_.clear();
    updater_->dismissNews();
    if (answer != Question::Answer::Confirmed) return;
    news == News::installed ? updater_->relaunch() : updater_->install();
  };
  update_ = sheets_.show(std::make_unique<Question>(updateWords(*updater_), answered));
}

// What is asked about may have been saved since.
void Alerts::renewQuitQuestion() {
  if (!quit_) return;
  const QStringList unsaved = library_.unsavedBrands();
  if (unsaved.isEmpty()) return quit_->give(Question::Answer::Dismissed);
  quit_->setTitle(quitTitle(unsaved));
}

}  // namespace tarnloft
