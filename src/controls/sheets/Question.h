#pragma once

#include "controls/sheets/SheetModel.h"

#include <functional>

namespace tarnloft {

// A question before something that can't easily be taken back, or an alert with one button.
class Question : public SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who ask")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(QString message READ message NOTIFY changed)
  Q_PROPERTY(QString confirmText READ confirmText NOTIFY changed)
  Q_PROPERTY(QString cancelText READ cancelText NOTIFY changed)
  Q_PROPERTY(QString alternativeText READ alternativeText NOTIFY changed)
  Q_PROPERTY(bool destructive READ isDestructive NOTIFY changed)
  Q_PROPERTY(bool cancelIsDefault READ isCancelDefault NOTIFY changed)
  Q_PROPERTY(Answer answer MEMBER answer_)

 public:
  enum class Answer { Dismissed, Confirmed, Alternative };
  Q_ENUM(Answer)

  struct Words {
    QString title;
    QString message;
    QString confirmText = QStringLiteral("OK");
    QString cancelText = QStringLiteral("Cancel");  // empty: it is an alert
    QString alternativeText = {};                   // of a third button; empty for none
    bool destructive = false;
    bool cancelIsDefault = false;
  };
  // Called once, when the question has closed.
  using Answered = std::function<void(Answer)>;

  Question(const Words& words, Answered answered);

  const QString& title() const { return words_.title; }
  const QString& message() const { return words_.message; }
  const QString& confirmText() const { return words_.confirmText; }
  const QString& cancelText() const { return words_.cancelText; }
  const QString& alternativeText() const { return words_.alternativeText; }
  bool isDestructive() const { return words_.destructive; }
  bool isCancelDefault() const { return words_.cancelIsDefault; }

  // What is asked about has changed.
  void setTitle(const QString& title);
  // Closes it with that answer, as its view does by its buttons.
  void give(Answer answer);

  QString view() const override { return viewURL("Controls", "QuestionView"); }
  void ended() override { answered_(answer_); }

 signals:
  void changed();

 private:
  Words words_;
  const Answered answered_;
  Answer answer_ = Answer::Dismissed;
};

}  // namespace tarnloft
