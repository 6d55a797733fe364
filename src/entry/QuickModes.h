#pragma once

#include "document/DocumentServices.h"
#include "entry/CommandLine.h"

// The modes that need neither a window nor the module. They print nothing; true on success. Main
// thread, with an application object.
namespace tarnloft::QuickModes {

bool exportPage(const PageExportMode& mode, const DocumentServices& services);
bool seedLogo(const LogoSeedingMode& mode, const DocumentServices& services);

}  // namespace tarnloft::QuickModes
