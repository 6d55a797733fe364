#pragma once

#include "platform/Fonts.h"
#include "platform/SystemLog.h"
#include "platform/desktop/decoding/DecoderPool.h"

#include <QThreadPool>

#include <chrono>
#include <memory>

namespace tarnloft {

// Has fonts read, rewritten and tried out by decoders, and registers those that stood it with the
// toolkit's font database. The process keeps a registered font's bytes, so that it draws on when
// its file is gone; one that is registered from several files is kept once.
class CheckedFonts : public Fonts {
 public:
  CheckedFonts(std::shared_ptr<decoding::DecoderPool> decoders, SystemLog& log);
  ~CheckedFonts() override;

  std::optional<FontNames> names(const QString& path) override;
  void registerForProcess(const QString& path) override;

  // Forgets what hasn't begun and waits for what has, at most so long; false if it still runs.
  bool finish(std::chrono::milliseconds patience);

 private:
  class Registry;

  const std::shared_ptr<decoding::DecoderPool> decoders_;
  const std::shared_ptr<Registry> registry_;
  QThreadPool checks_;  // its own, as the toolkit waits for the common one while it draws
};

}  // namespace tarnloft
