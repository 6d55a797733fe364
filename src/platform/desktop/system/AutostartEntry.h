#pragma once

#include "platform/LoginItem.h"

#include <QString>

namespace tarnloft {

// An entry in the user's folder of programs that a session starts.
class AutostartEntry : public LoginItem {
 public:
  // The folder may not be there yet. The program is started by that path.
  AutostartEntry(const QString& folder, const QString& program);

  // False as well where the desktop's own settings have turned the entry off.
  bool isOn() const override;
  Result<void> setOn(bool isOn) override;

  static QString userFolder();
  // In the environment it has a start open no window.
  static constexpr const char* startVariable = "TARNLOFT_START";
  static constexpr const char* hidden = "hidden";

 private:
  const QString path_;
  const QString program_;
};

}  // namespace tarnloft
