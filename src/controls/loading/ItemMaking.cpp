#include "controls/loading/ItemMaking.h"

#include <QQmlContext>
#include <QQmlEngine>

namespace tarnloft {

QQuickItem* makeItem(QQmlComponent& component, QQuickItem& parent,
                     const std::function<QVariantMap(QQuickItem&)>& prepare) {
  QObject* const object = component.beginCreate(component.creationContext());
  auto* const item = qobject_cast<QQuickItem*>(object);
  if (!item) {
    qWarning("%s", qPrintable(component.errorString()));
    delete object;
    return nullptr;
  }
  QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
  item->setParent(&parent);
  item->setParentItem(&parent);
  if (const QVariantMap properties = prepare(*item); !properties.isEmpty()) {
    component.setInitialProperties(item, properties);
  }
  component.completeCreate();
  return item;
}

}  // namespace tarnloft
