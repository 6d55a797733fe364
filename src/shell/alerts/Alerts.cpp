#include "shell/alerts/Alerts.h"

namespace tarnloft {
namespace {

// Reasons come from many places, the system among them, with and without a full stop.
QString sentence(const QString& text) {
  const bool hasEnd = text.isEmpty() || QStringLiteral(".!?…”").contains(text.back());
  return hasEnd ? text : text + QLatin1Char('.');
}

}  // namespace

Alerts::Alerts(LibraryStore& library, QObject* parent) : QObject(parent), library_(library) {
  const LibraryStore* const store = &library;
  connect(store, &LibraryStore::unsavedChanged, this, &Alerts::saveProblemChanged);
  connect(store, &LibraryStore::unsavedChanged, this, &Alerts::renewQuitQuestion);
  connect(store, &LibraryStore::openDocumentChanged, this, &Alerts::saveProblemChanged);
  connect(store, &LibraryStore::libraryProblemChanged, this, &Alerts::libraryProblemChanged);
  connect(store, &LibraryStore::noticesChanged, this, &Alerts::noticeChanged);
  connect(store, &LibraryStore::trashRefused, this,
          [this](const BrandSummary& brand, const QString& reason) {
            refused_ = brand;
            refusal_ = reason;
            ask(TrashQuestion::refused);
          });
}

QString Alerts::saveProblem() const {
  const BrandDocument* const open = library_.openDocument();
  return open ? open->saveProblem() : QString();
}

QString Alerts::libraryProblem() const { return sentence(library_.libraryProblem()); }

QString Alerts::noticeTitle() const {
  const auto& notices = library_.notices();
  return notices.isEmpty() ? QString() : notices.first().title;
}

QString Alerts::noticeMessage() const {
  const auto& notices = library_.notices();
  return notices.isEmpty() ? QString() : sentence(notices.first().message);
}

void Alerts::ask(TrashQuestion question) {
  trashQuestion_ = question;
  emit trashQuestionChanged();
}

QString Alerts::trashTitle() const {
  switch (trashQuestion_) {
    case TrashQuestion::refused:
      return QStringLiteral("“%1” can't be moved to the Trash").arg(refused_.name);
    case TrashQuestion::immediately:
      return QStringLiteral("Delete “%1” immediately?").arg(refused_.name);
    case TrashQuestion::none: break;
  }
  return {};
}

QString Alerts::trashMessage() const {
  switch (trashQuestion_) {
    case TrashQuestion::refused:
      return sentence(refusal_) + QStringLiteral(" The brand stays in the library.");
    case TrashQuestion::immediately:
      return QStringLiteral("The brand and all of its files are gone then. You can't undo this.");
    case TrashQuestion::none: break;
  }
  return {};
}

void Alerts::askDeleteImmediately() { ask(TrashQuestion::immediately); }

void Alerts::deleteImmediately() {
  ask(TrashQuestion::none);
  library_.deleteBrandImmediately(refused_);
}

void Alerts::keepBrand() { ask(TrashQuestion::none); }

QString Alerts::quitTitle() const {
  const QStringList names = library_.unsavedBrands();
  return names.size() == 1 ? QStringLiteral("Changes to “%1” aren't saved").arg(names.first())
                           : QStringLiteral("Changes to %1 brands aren't saved").arg(names.size());
}

QString Alerts::quitMessage() const {
  return QStringLiteral("They couldn't be written to the disk. If you quit now, they are lost.");
}

void Alerts::askToQuit() {
  isAskingToQuit_ = true;
  emit askingToQuitChanged();
}

void Alerts::stay() {
  isAskingToQuit_ = false;
  emit askingToQuitChanged();
}

// What is asked about may have been saved since.
void Alerts::renewQuitQuestion() {
  if (!isAskingToQuit_) return;
  isAskingToQuit_ = !library_.unsavedBrands().isEmpty();
  emit askingToQuitChanged();
}

void Alerts::quitAnyway() {
  stay();
  emit quitConfirmed();
}

}  // namespace tarnloft
