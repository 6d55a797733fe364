#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

// The heights that controls come in, for QML: `ControlSize.Small`.
namespace tarnloft::ControlSize {
Q_NAMESPACE
QML_NAMED_ELEMENT(ControlSize)

enum class Size { Small, Regular, Large };
Q_ENUM_NS(Size)

}  // namespace tarnloft::ControlSize
