#pragma once

#include "platform/Preferences.h"
#include "platform/SystemLog.h"

#include <QSettings>

namespace tarnloft {

// Preferences in an INI file. Of a damaged one, what can be read counts, and a copy is kept beside
// it, as the next change writes it anew. Where it can't be written, changes hold for this run. The
// log is told of either, once.
class IniPreferences : public Preferences {
 public:
  // "tarnloft.ini" in the user's configuration folder. The log is borrowed and outlives this.
  explicit IniPreferences(SystemLog& log);
  IniPreferences(const QString& path, SystemLog& log);
  ~IniPreferences() override;
  Q_DISABLE_COPY_MOVE(IniPreferences)

  std::optional<QString> text(const QString& key) const override;
  std::optional<double> number(const QString& key) const override;
  QStringList texts(const QString& key) const override;
  void setText(const QString& key, const QString& value) override;
  void setNumber(const QString& key, double value) override;
  void setTexts(const QString& key, const QStringList& values) override;
  void remove(const QString& key) override;

 private:
  void set(const QString& key, const QVariant& value);
  void tellUnwritable();

  SystemLog& log_;
  QSettings settings_;
  bool isUnwritable_ = false;  // and told
};

}  // namespace tarnloft
