#pragma once

#include <QString>

namespace tarnloft {

// The system's log, for the few failures worth a trace.
class SystemLog {
 public:
  virtual ~SystemLog() = default;

  // Writes one line; "Tarn Loft: " is put in front of the text. Never fails visibly.
  virtual void write(const QString& text) = 0;
};

}  // namespace tarnloft
