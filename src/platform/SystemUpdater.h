#pragma once

#include "model/Error.h"

#include <QString>

#include <functional>
#include <optional>

namespace tarnloft {

// The desktop's service that keeps installed programs up to date from the system's own sources, as
// far as it concerns this one. Main thread. Nothing here waits: each end comes later, once, and
// `cancel` brings it forward. One piece of work at a time.
class SystemUpdater {
 public:
  struct Update {
    QString version;
    QString changes;  // as its packager tells them; empty where the service doesn't know
    QString id;       // the service's own

    bool operator==(const Update&) const = default;
  };

  // Who wants it: a user may be asked for a password, nobody else is.
  enum class Asker { user, clock };

  using Found = std::function<void(Result<std::optional<Update>>)>;
  using Progress = std::function<void(int percent)>;
  using Ended = std::function<void(Result<void>)>;

  virtual ~SystemUpdater() = default;

  // `isThere` runs, once, if the program came as a package and the service can be had.
  virtual void look(std::function<void()> isThere) = 0;

  // Has the sources read anew, and gives what they have that is newer; none if nothing is.
  virtual void check(Asker asker, Found found) = 0;

  virtual void download(const Update& update, Progress progress, Ended ended) = 0;

  // Refused where it takes a password that nobody is asked for. The running program stays as it
  // is.
  virtual void install(const Update& update, Asker asker, Progress progress, Ended ended) = 0;

  virtual void cancel() = 0;

  // Another version stands where the running one was started from, whoever put it there.
  virtual bool isReplaced() const = 0;

  // `replaced` runs, once, when that has come about.
  virtual void watch(std::function<void()> replaced) = 0;
};

}  // namespace tarnloft
