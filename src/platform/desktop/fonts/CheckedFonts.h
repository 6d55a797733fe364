#pragma once

#include "platform/Fonts.h"
#include "platform/SystemLog.h"
#include "platform/desktop/decoding/DecoderPool.h"

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

 private:
  class Registry;

  const std::shared_ptr<decoding::DecoderPool> decoders_;
  const std::shared_ptr<Registry> registry_;  // outlives this while a file is being read aside
};

}  // namespace tarnloft
