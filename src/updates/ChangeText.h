#pragma once

#include <QString>

namespace tarnloft {

// A package's changelog as a user reads it: the versions with their changes as lists, without who
// packed them and when. A text of another form stays as it is.
QString readableChanges(const QString& changelog);

}  // namespace tarnloft
