#pragma once

#include "document/DocumentServices.h"

namespace tarnloft::SelfTest {

// Works through the model, the package and the publishing code, printing one line for each check to
// standard output. True if no check failed and all was printed. Works in the temporary directory;
// main thread.
bool run(const DocumentServices& services);

}  // namespace tarnloft::SelfTest
