#include "updates/UpdaterViewModel.h"

#include "model/ShownText.h"
#include "updates/ChangeText.h"

#include <QDateTime>
#include <QLocale>
#include <QPointer>

#include <chrono>
#include <utility>

namespace tarnloft {
namespace {

using namespace std::chrono_literals;

const QLatin1String checksKey("updates.check");
const QLatin1String downloadsKey("updates.download");
const QLatin1String checkedKey("updates.checked");  // seconds since 1970
const QLatin1String toldKey("updates.told");        // the version that the user put off

const QLatin1String yes("true");
const QLatin1String no("false");

constexpr qsizetype mostOfChanges = 8000;  // characters

constexpr auto firstLook = 1min;  // behind the start, with which it shall not compete
constexpr auto nextLook = 1h;     // at the clock, as a machine may sleep for a day
constexpr auto interval = 24h;

double secondsOf(Timestamp moment) {
  return double(std::chrono::floor<std::chrono::seconds>(moment).time_since_epoch().count());
}

}  // namespace

UpdaterViewModel::UpdaterViewModel(SystemUpdater& updater, Preferences& preferences, Clock clock)
    : updater_(updater), preferences_(preferences), clock_(std::move(clock)) {
  connect(&schedule_, &QTimer::timeout, this, [this] {
    schedule_.setInterval(nextLook);
    checkIfDue();
  });
}

void UpdaterViewModel::start() {
  if (std::exchange(isStarted_, true)) return;
  updater_.look([self = QPointer(this)] {
    if (!self) return;
    self->isThere_ = true;
    self->schedule_.start(firstLook);
    self->updater_.watch([self] {
      if (self && !self->isBusy()) self->replaced();
    });
    emit self->changed();
  });
}

bool UpdaterViewModel::checksForUpdates() const {
  return preferences_.text(checksKey).value_or(yes) != no;
}

void UpdaterViewModel::setChecksForUpdates(bool checks) {
  preferences_.setText(checksKey, checks ? yes : no);
  emit changed();
}

bool UpdaterViewModel::downloadsUpdates() const { return preferences_.text(downloadsKey) == yes; }

void UpdaterViewModel::setDownloadsUpdates(bool downloads) {
  preferences_.setText(downloadsKey, downloads ? yes : no);
  emit changed();
}

bool UpdaterViewModel::isBusy() const {
  return state_ == State::Checking || state_ == State::Downloading || state_ == State::Installing;
}

// A clock that was set back makes it due as well.
bool UpdaterViewModel::isDue() const {
  const double checked = preferences_.number(checkedKey).value_or(0);
  const double now = secondsOf(clock_());
  return now < checked || now >= checked + double(std::chrono::seconds(interval).count());
}

void UpdaterViewModel::checkIfDue() {
  const bool waitsForUser = state_ == State::Installed;
  if (canCheckForUpdates() && checksForUpdates() && isDue() && !waitsForUser) check(Asker::clock);
}

void UpdaterViewModel::checkForUpdates() {
  if (canCheckForUpdates()) check(Asker::user);
}

void UpdaterViewModel::check(Asker asker) {
  problem_.clear();
  become(State::Checking);
  updater_.check(asker, [self = QPointer(this), asker](const auto& found) {
    if (self) self->checked(asker, found);
  });
}

void UpdaterViewModel::checked(Asker asker,
                               const Result<std::optional<SystemUpdater::Update>>& found) {
  if (!found) {
    const bool isKnown = update_.has_value();
    return fail(isKnown ? State::Available : State::Idle,
                QStringLiteral("Updates couldn't be looked for"), found.error());
  }
  preferences_.setNumber(checkedKey, secondsOf(clock_()));
  update_ = *found;
  if (update_) return offer(asker);
  if (!updater_.isReplaced()) return become(State::UpToDate);
  replaced();
}

void UpdaterViewModel::replaced() {
  if (state_ == State::Installed) return;
  become(State::Installed);
  tell(News::installed);
}

// What the user has just asked for is told where they asked.
void UpdaterViewModel::offer(Asker asker) {
  become(State::Available);
  if (asker == Asker::user) return;
  if (downloadsUpdates()) return installAlone();
  if (preferences_.text(toldKey) != version()) tell(News::available);
}

// Fetched first, as that takes no password: one who is asked for theirs needn't wait then.
void UpdaterViewModel::installAlone() {
  become(State::Downloading);
  updater_.download(*update_, follow(), [self = QPointer(this)](const Result<void>& result) {
    if (!self) return;
    if (result) return self->install(Asker::clock);
    self->failAlone(QStringLiteral("The update couldn't be downloaded"), result.error());
  });
}

void UpdaterViewModel::install() {
  if (state_ != State::Available) return;
  install(Asker::user);
  emit installationBegun();
}

void UpdaterViewModel::install(Asker asker) {
  if (asker == Asker::user) dismissNews();
  problem_.clear();
  become(State::Installing);
  updater_.install(*update_, asker, follow(), [self = QPointer(this), asker](const auto& result) {
    if (self) self->installed(asker, result);
  });
}

void UpdaterViewModel::installed(Asker asker, const Result<void>& result) {
  if (result) return replaced();
  const auto what = QStringLiteral("The update couldn't be installed");
  asker == Asker::clock ? failAlone(what, result.error())
                        : fail(State::Available, what, result.error());
}

// What is refused to a clock may be granted to a user.
void UpdaterViewModel::failAlone(const QString& what, const Error& error) {
  if (error.kind != ErrorKind::refused) return fail(State::Available, what, error);
  become(State::Available);
  if (preferences_.text(toldKey) != version()) tell(News::available);
}

void UpdaterViewModel::cancel() {
  isCancelled_ = true;
  updater_.cancel();
}

// Another program may have installed it meanwhile.
void UpdaterViewModel::fail(State state, const QString& what, const Error& error) {
  if (updater_.isReplaced()) return replaced();
  if (!isCancelled_) problem_ = what + QStringLiteral(": ") + error.message;
  become(state);
}

void UpdaterViewModel::become(State state) {
  state_ = state;
  percent_ = 0;
  isCancelled_ = false;
  emit changed();
}

SystemUpdater::Progress UpdaterViewModel::follow() {
  return [self = QPointer(this)](int percent) {
    if (!self) return;
    self->percent_ = percent;
    emit self->changed();
  };
}

void UpdaterViewModel::tell(News news) {
  news_ = news;
  emit newsChanged();
}

void UpdaterViewModel::dismissNews() {
  if (news_ == News::available) preferences_.setText(toldKey, version());
  tell(News::none);
}

QString UpdaterViewModel::changes() const {
  return update_ ? shownText(readableChanges(update_->changes), mostOfChanges) : QString();
}

QString UpdaterViewModel::status() const {
  const QString named = QStringLiteral("Tarn Loft ") + version();
  switch (state_) {
    case State::Idle: {
      const double checked = preferences_.number(checkedKey).value_or(0);
      if (checked <= 0) return {};
      const auto moment = QDateTime::fromSecsSinceEpoch(qint64(checked));
      return QStringLiteral("Last checked: ") + QLocale().toString(moment, QLocale::ShortFormat);
    }
    case State::Checking: return QStringLiteral("Looking for updates…");
    case State::UpToDate: return QStringLiteral("Tarn Loft is up to date.");
    case State::Available: return named + QStringLiteral(" is available.");
    case State::Downloading: return QStringLiteral("Downloading ") + named + QStringLiteral("…");
    case State::Installing: return QStringLiteral("Installing ") + named + QStringLiteral("…");
    case State::Installed: return QStringLiteral("A new version is installed.");
  }
  return {};
}

}  // namespace tarnloft
