#pragma once

#include "library/LibraryStore.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// What a window tells of work that failed, and what it asks then: the bar over a brand that can't
// be saved, the library that isn't there, notices, and the questions behind a trash that isn't to
// be had and before quitting with unsaved work. Texts are empty while there is nothing to tell.
class Alerts : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  // Why the open brand's changes aren't on disk.
  Q_PROPERTY(QString saveProblem READ saveProblem NOTIFY saveProblemChanged)
  Q_PROPERTY(QString libraryProblem READ libraryProblem NOTIFY libraryProblemChanged)
  // The oldest notice that hasn't been dismissed.
  Q_PROPERTY(QString noticeTitle READ noticeTitle NOTIFY noticeChanged)
  Q_PROPERTY(QString noticeMessage READ noticeMessage NOTIFY noticeChanged)
  Q_PROPERTY(TrashQuestion trashQuestion READ trashQuestion NOTIFY trashQuestionChanged)
  Q_PROPERTY(QString trashTitle READ trashTitle NOTIFY trashQuestionChanged)
  Q_PROPERTY(QString trashMessage READ trashMessage NOTIFY trashQuestionChanged)
  Q_PROPERTY(bool askingToQuit READ isAskingToQuit NOTIFY askingToQuitChanged)
  Q_PROPERTY(QString quitTitle READ quitTitle NOTIFY askingToQuitChanged)
  Q_PROPERTY(QString quitMessage READ quitMessage NOTIFY askingToQuitChanged)

 public:
  enum class TrashQuestion {
    none,
    refused,     // the brand couldn't be moved to the trash
    immediately  // whether to delete it for ever
  };
  Q_ENUM(TrashQuestion)

  // Borrowed: it outlives this.
  explicit Alerts(LibraryStore& library, QObject* parent = nullptr);

  QString saveProblem() const;
  Q_INVOKABLE void retrySave() { library_.retrySaves(); }
  Q_INVOKABLE void saveCopy() { library_.saveCopy(); }

  QString libraryProblem() const;
  Q_INVOKABLE void lookAgain() { library_.scan(); }

  QString noticeTitle() const;
  QString noticeMessage() const;
  Q_INVOKABLE void dismissNotice() { library_.dismissNotice(); }

  TrashQuestion trashQuestion() const { return trashQuestion_; }
  QString trashTitle() const;
  QString trashMessage() const;
  Q_INVOKABLE void askDeleteImmediately();
  Q_INVOKABLE void deleteImmediately();
  Q_INVOKABLE void keepBrand();

  bool isAskingToQuit() const { return isAskingToQuit_; }
  QString quitTitle() const;
  QString quitMessage() const;
  void askToQuit();
  Q_INVOKABLE void quitAnyway();
  Q_INVOKABLE void stay();

 signals:
  void saveProblemChanged();
  void libraryProblemChanged();
  void noticeChanged();
  void trashQuestionChanged();
  void askingToQuitChanged();
  void quitConfirmed();

 private:
  void ask(TrashQuestion question);
  void renewQuitQuestion();

  LibraryStore& library_;

  TrashQuestion trashQuestion_ = TrashQuestion::none;
  BrandSummary refused_;
  QString refusal_;
  bool isAskingToQuit_ = false;
};

}  // namespace tarnloft
