#pragma once

#include "controls/sheets/Question.h"
#include "controls/sheets/SheetHost.h"
#include "library/LibraryStore.h"
#include "updates/UpdaterViewModel.h"

#include <QPointer>

namespace tarnloft {

// What a window tells of work that failed, and what it asks then: the bar over a brand that can't
// be saved, the library that isn't there, notices, and the questions behind a trash that isn't to
// be had and before quitting with unsaved work, and what it asks about updates. Texts are empty
// while there is nothing to tell.
class Alerts : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  // Why the open brand's changes aren't on disk.
  Q_PROPERTY(QString saveProblem READ saveProblem NOTIFY saveProblemChanged)
  // Why the open brand is shown without its fonts and pictures.
  Q_PROPERTY(QString plainness READ plainness NOTIFY plainnessChanged)
  Q_PROPERTY(QString libraryProblem READ libraryProblem NOTIFY libraryProblemChanged)

 public:
  // Borrowed: all outlive this. The updater may be null.
  Alerts(LibraryStore& library, SheetHost& sheets, UpdaterViewModel* updater = nullptr,
         QObject* parent = nullptr);

  QString saveProblem() const;
  Q_INVOKABLE void retrySave() { library_.retrySaves(); }
  Q_INVOKABLE void saveCopy() { library_.saveCopy(); }

  QString plainness() const;
  Q_INVOKABLE void showWholly() { library_.showWholly(); }

  QString libraryProblem() const;
  Q_INVOKABLE void lookAgain() { library_.scan(); }

  // Asks whether to quit with work that isn't saved, over whatever is up, until all is saved.
  void askToQuit();

 signals:
  void saveProblemChanged();
  void libraryProblemChanged();
  void plainnessChanged();
  void quitConfirmed();

 private:
  void showNotice();
  void askAboutOpening();
  void tellRefused(const BrandSummary& brand, const QString& reason);
  void askDeleteImmediately(const BrandSummary& brand);
  void quitAnswered(Question::Answer answer);
  void renewQuitQuestion();
  void askAboutUpdate();

  LibraryStore& library_;
  SheetHost& sheets_;
  UpdaterViewModel* const updater_;
  QPointer<Question> update_;
  int updatesAsked_ = 0;       // questions, of which the newest counts
  QPointer<Question> notice_;  // the oldest that hasn't been dismissed
  QPointer<Question> opening_;
  QPointer<Question> quit_;
};

}  // namespace tarnloft
