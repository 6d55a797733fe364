#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace tarnloft {

// The user's preferences: texts, numbers and lists of texts by key. Main thread. What is set is
// read back at once and reaches the disk soon after; nothing here fails visibly.
class Preferences {
 public:
  virtual ~Preferences() = default;

  // None if the key is absent or holds something else.
  virtual std::optional<QString> text(const QString& key) const = 0;
  virtual std::optional<double> number(const QString& key) const = 0;
  virtual QStringList texts(const QString& key) const = 0;

  virtual void setText(const QString& key, const QString& value) = 0;
  virtual void setNumber(const QString& key, double value) = 0;
  virtual void setTexts(const QString& key, const QStringList& values) = 0;
  virtual void remove(const QString& key) = 0;
};

}  // namespace tarnloft
