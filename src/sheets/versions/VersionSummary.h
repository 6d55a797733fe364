#pragma once

#include "model/Brand.h"

#include <QStringList>

namespace tarnloft::VersionSummary {

// "5 sections, 42 items".
QString counts(const Brand& brand);

// What restoring a version would change of the brand as it is now, a line each: its name, its
// sections, and by kind the items it has more or less ("3 colors more, 1 logo less"). Empty if the
// two hold the same.
QStringList differences(const Brand& version, const Brand& now);

}  // namespace tarnloft::VersionSummary
