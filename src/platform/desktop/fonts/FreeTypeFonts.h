#pragma once

#include "platform/Fonts.h"

#include <memory>

namespace tarnloft {

// Reads fonts through FreeType and registers them with the toolkit's font database. The process
// keeps a registered font's bytes, so that it draws on when its file is gone; one that is
// registered from several files is kept once.
class FreeTypeFonts : public Fonts {
 public:
  FreeTypeFonts();
  ~FreeTypeFonts() override;

  std::optional<FontNames> names(const QString& path) override;
  void registerForProcess(const QString& path) override;

 private:
  class Registry;

  std::shared_ptr<Registry> registry_;  // outlives this while a file is being read aside
};

}  // namespace tarnloft
