#pragma once

#include <QString>

namespace tarnloft {

// Where the running program's file is, or was when it was started; empty if the system doesn't
// tell. Any thread.
QString programFile();

// Another version stands in the place of the running one, whoever put it there: its modules are
// there too, and none of them fits any more. Any thread.
bool isProgramReplaced();

}  // namespace tarnloft
