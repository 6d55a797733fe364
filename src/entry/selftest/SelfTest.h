#pragma once

#include "document/DocumentServices.h"
#include "platform/Images.h"

namespace tarnloft::SelfTest {

// Works through the model, the package, the publishing code and the pictures, printing one line for
// each check to standard output. True if no check failed and all was printed. Works in the
// temporary directory; main thread.
bool run(const DocumentServices& services, Images& images);

}  // namespace tarnloft::SelfTest
