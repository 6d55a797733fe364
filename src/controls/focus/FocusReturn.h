#pragma once

#include <QList>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// Gives the focus back when a popup closes: to what had it when the popup opened or, where that has
// gone with a popup of its own (a sheet opened from a menu), to what had it before. Focus that the
// user has moved elsewhere in the meantime stays there.
class FocusReturn : public QObject {
  Q_OBJECT
  QML_ELEMENT
  // Any item of the window.
  Q_PROPERTY(QQuickItem* within MEMBER within_ NOTIFY withinChanged)
  // The popup's own content, which the focus leaves when it closes.
  Q_PROPERTY(QQuickItem* content MEMBER content_ NOTIFY contentChanged)

 public:
  explicit FocusReturn(QObject* parent = nullptr);
  ~FocusReturn() override;

  // Call it before the popup takes the focus, and when it has closed.
  Q_INVOKABLE void remember();
  Q_INVOKABLE void giveBack();

 signals:
  void withinChanged();
  void contentChanged();

 private:
  using Items = QList<QPointer<QQuickItem>>;

  bool isFree(const QQuickItem* focused, const QQuickItem* target) const;

  QPointer<QQuickItem> within_;
  QPointer<QQuickItem> content_;
  Items before_;  // the latest first
};

}  // namespace tarnloft
