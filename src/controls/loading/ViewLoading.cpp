#include "controls/loading/ViewLoading.h"

#include <QCoreApplication>

namespace tarnloft {

void ViewLoading::answer() { QCoreApplication::sendPostedEvents(nullptr, QEvent::User); }

}  // namespace tarnloft
