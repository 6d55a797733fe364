#pragma once

#include <QQmlComponent>
#include <QQuickItem>
#include <QVariantMap>

#include <functional>

namespace tarnloft {

// Makes an item that the parent owns. `prepare` is called with it before its content is made, which
// else would be laid out twice, and gives the properties that it begins with. Null, with a warning,
// if the component makes none. Main thread.
QQuickItem* makeItem(QQmlComponent& component, QQuickItem& parent,
                     const std::function<QVariantMap(QQuickItem&)>& prepare);

}  // namespace tarnloft
