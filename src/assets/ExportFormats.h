#pragma once

#include "model/ExportFormat.h"

#include <QString>

namespace tarnloft {

// "jpg" for JPEG: unlike the stored form.
QString fileExtension(ExportFormat format);
// As shown in the interface, such as "JPEG".
QString label(ExportFormat format);
// Such as "image/jpeg".
QString mimeType(ExportFormat format);
// True if quality counts.
bool isLossy(ExportFormat format);

}  // namespace tarnloft
