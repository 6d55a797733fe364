#pragma once

#include "platform/Preferences.h"

#include <QSettings>

namespace tarnloft {

// Preferences in an INI file.
class IniPreferences : public Preferences {
 public:
  // "tarnloft.ini" in the user's configuration folder.
  IniPreferences();
  explicit IniPreferences(const QString& path);

  std::optional<QString> text(const QString& key) const override;
  std::optional<double> number(const QString& key) const override;
  QStringList texts(const QString& key) const override;
  void setText(const QString& key, const QString& value) override;
  void setNumber(const QString& key, double value) override;
  void setTexts(const QString& key, const QStringList& values) override;
  void remove(const QString& key) override;

 private:
  QSettings settings_;
};

}  // namespace tarnloft
