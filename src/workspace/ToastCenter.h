#pragma once

#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <chrono>
#include <optional>

namespace tarnloft {

// A window's way to tell of a finished action: a text shown for a moment. Main thread.
class ToastCenter : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  // Empty while nothing is shown.
  Q_PROPERTY(QString message READ text NOTIFY messageChanged)

 public:
  static constexpr std::chrono::milliseconds duration{1400};

  explicit ToastCenter(std::chrono::milliseconds shownFor = duration, QObject* parent = nullptr);

  const std::optional<QString>& message() const { return message_; }
  QString text() const { return message_.value_or(QString()); }

  // Replaces what is shown and begins its time anew.
  Q_INVOKABLE void show(const QString& text);

 signals:
  void messageChanged();

 private:
  void setMessage(const std::optional<QString>& message);

  std::optional<QString> message_;
  QTimer clearWork_;
};

}  // namespace tarnloft
