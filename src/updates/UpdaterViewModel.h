#pragma once

#include "model/Timestamp.h"
#include "platform/Preferences.h"
#include "platform/SystemUpdater.h"

#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Keeps the program up to date as the user wishes, by the desktop's updater: looks once a day if
// wanted, and installs by itself if that is wanted too. Tells what there is, and asks for nothing
// but a new start. Lives as long as the program. Main thread.
class UpdaterViewModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The application has one")
  // The program came as a package that the desktop can renew; else nothing of this is shown.
  Q_PROPERTY(bool isThere READ isThere NOTIFY changed)
  Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY changed)
  Q_PROPERTY(bool checksForUpdates READ checksForUpdates WRITE setChecksForUpdates NOTIFY changed)
  Q_PROPERTY(bool downloadsUpdates READ downloadsUpdates WRITE setDownloadsUpdates NOTIFY changed)
  Q_PROPERTY(State state READ state NOTIFY changed)
  // Where things stand, in a sentence; empty if nothing is known.
  Q_PROPERTY(QString status READ status NOTIFY changed)
  // What the update that was found brings; empty if its packager doesn't tell.
  Q_PROPERTY(QString changes READ changes NOTIFY changed)
  // Of a download or an installation; none before the service tells any.
  Q_PROPERTY(int percent READ percent NOTIFY changed)
  // Why the last piece of work failed; empty if it didn't.
  Q_PROPERTY(QString problem READ problem NOTIFY changed)

 public:
  enum class State { Idle, Checking, UpToDate, Available, Downloading, Installing, Installed };
  Q_ENUM(State)

  // What the user is to be told, wherever they are.
  enum class News { none, available, installed };

  // Borrowed: both outlive this.
  UpdaterViewModel(SystemUpdater& updater, Preferences& preferences, Clock clock);

  // Asks whether there is an updater, and looks for updates from then on; the first call counts.
  void start();

  bool isThere() const { return isThere_; }
  bool canCheckForUpdates() const { return isThere_ && !isBusy(); }
  bool checksForUpdates() const;
  void setChecksForUpdates(bool checks);
  bool downloadsUpdates() const;
  void setDownloadsUpdates(bool downloads);

  Q_INVOKABLE void checkForUpdates();
  Q_INVOKABLE void install();
  Q_INVOKABLE void cancel();
  // Tells that the user wants the installed version to run.
  Q_INVOKABLE void relaunch() { emit relaunchRequested(); }

  State state() const { return state_; }
  QString status() const;
  QString changes() const;
  int percent() const { return percent_; }
  const QString& problem() const { return problem_; }
  QString version() const { return update_ ? update_->version : QString(); }

  News news() const { return news_; }
  void dismissNews();

  // Looks, if that is wanted and a day has passed; the clock of this calls it now and then.
  void checkIfDue();

 signals:
  void changed();
  void newsChanged();
  void relaunchRequested();
  // The user wants the update: how that goes, and what fails, is to be seen in the settings.
  void installationBegun();

 private:
  using Asker = SystemUpdater::Asker;

  bool isBusy() const;
  bool isDue() const;
  void check(Asker asker);
  void checked(Asker asker, const Result<std::optional<SystemUpdater::Update>>& found);
  void offer(Asker asker);
  void installAlone();
  void install(Asker asker);
  void installed(Asker asker, const Result<void>& result);
  void replaced();
  void failAlone(const QString& what, const Error& error);
  void fail(State state, const QString& what, const Error& error);
  void tell(News news);
  void become(State state);
  SystemUpdater::Progress follow();

  SystemUpdater& updater_;
  Preferences& preferences_;
  const Clock clock_;
  QTimer schedule_;
  bool isStarted_ = false;
  bool isThere_ = false;
  State state_ = State::Idle;
  std::optional<SystemUpdater::Update> update_;
  int percent_ = 0;
  bool isCancelled_ = false;
  QString problem_;
  News news_ = News::none;
};

}  // namespace tarnloft
