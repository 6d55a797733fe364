#pragma once

#include "document/DocumentServices.h"

#include <QStringList>

#include <functional>

namespace tarnloft {

// The program's one entry: moves an old support folder, then runs what the arguments ask for.
namespace Main {

// Starts the window application and gives its exit status.
using StartApplication = std::function<int()>;

// Gives the process's exit status. Main thread.
int run(const QStringList& arguments, const DocumentServices& services,
        const StartApplication& startApplication);

}  // namespace Main
}  // namespace tarnloft
