#pragma once

#include "platform/FileStore.h"
#include "platform/SystemLog.h"

namespace tarnloft::SupportFolder {

// The user's folder for the data of applications.
QString applicationSupportFolder();

// Moves the support folder of the product's former name to the present one, once: does nothing if
// the present one exists or there is no old one. Runs before anything else looks at the disk. The
// outcome is one line in the system log.
void migrateIfNeeded(FileStore& files, SystemLog& log,
                     const QString& applicationSupport = applicationSupportFolder());

}  // namespace tarnloft::SupportFolder
