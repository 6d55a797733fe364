#pragma once

#include <QtGlobal>

#include <optional>

namespace tarnloft {

// Another process of this user that runs this program: the very one, even when its number is given
// to a new process meanwhile.
class OtherProcess {
 public:
  // None if that process has gone, is another user's or runs another program.
  static std::optional<OtherProcess> of(qint64 pid);
  OtherProcess(OtherProcess&& other) noexcept;
  OtherProcess& operator=(OtherProcess&& other) noexcept;
  ~OtherProcess();
  Q_DISABLE_COPY(OtherProcess)

  // Nothing happens if it has ended.
  void signal(int number) const;
  bool hasEnded() const;

 private:
  explicit OtherProcess(int descriptor) : descriptor_(descriptor) {}

  int descriptor_;  // -1 for one that was moved from
};

}  // namespace tarnloft
