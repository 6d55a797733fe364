#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

namespace tarnloft {

// What is being brought in just now, told when it takes longer than a moment. Main thread.
class ImportProgress : public QObject {
  Q_OBJECT

 public:
  ImportProgress();

  // By the name that the user knows it by.
  void begin(const QString& name);
  void end(const QString& name);

  // Such as "Adding “Film.mov”…"; empty while there is nothing to tell.
  QString text() const;

 signals:
  void textChanged();

 private:
  QStringList names_;
  QTimer moment_;
  bool isLong_ = false;
};

}  // namespace tarnloft
