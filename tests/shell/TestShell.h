#pragma once

#include "shell/window/ContentModel.h"
#include "workspace/TestWorkspace.h"

namespace tarnloft {

struct TestShell : TestDesktop {
  std::unique_ptr<ContentModel> makeContent() { return std::make_unique<ContentModel>(services()); }
};

}  // namespace tarnloft
