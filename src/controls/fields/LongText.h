#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tarnloft {

// A text of any length behind a field that lays out one part of it at a time:
//   LongText { id: parts; text: …; onEdited: text => … }  TextArea { text: parts.part }
// A text of some pages is one part. The parts' borders stay while one is edited. Main thread.
class LongText : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY partChanged)  // all of it
  Q_PROPERTY(QString part READ part NOTIFY partChanged)
  Q_PROPERTY(int place READ place WRITE setPlace NOTIFY partChanged)  // the part's, among all
  Q_PROPERTY(int count READ count NOTIFY partChanged)

 public:
  static constexpr qsizetype mostUndivided = 10'000;
  static constexpr qsizetype mostInPart = 5'000;

  using QObject::QObject;

  // What a field shows at first of a text.
  static QString firstPart(const QString& text);

  const QString& text() const { return text_; }
  void setText(const QString& text);
  QString part() const;
  int place() const { return place_; }
  void setPlace(int place);
  int count() const { return int(starts_.size()); }

  // The user has made that of the part. What the field tells while it is given another part isn't
  // the user's, and does nothing.
  Q_INVOKABLE void edit(const QString& part);

 signals:
  void partChanged();
  // The whole text, of which a part was edited.
  void edited(const QString& text);

 private:
  qsizetype end() const;  // of the part
  void divide();
  void tell();

  QString text_;
  std::vector<qsizetype> starts_{0};  // of the parts
  int place_ = 0;
  bool isTelling_ = false;
};

}  // namespace tarnloft
