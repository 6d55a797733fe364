#include "sheets/versions/VersionHistorySheet.h"

#include "controls/sheets/Question.h"
#include "platform/DesktopWords.h"
#include "sheets/versions/VersionSummary.h"

#include <algorithm>
#include <utility>

namespace tarnloft {

VersionHistorySheet::VersionHistorySheet(BrandDocument& document, const Actions& actions)
    : document_(&document), actions_(actions) {
  connect(&document, &QObject::destroyed, this, &SheetModel::finished);
  connect(&document, &BrandDocument::packageURLChanged, this, &VersionHistorySheet::reload);
  connect(&document, &BrandDocument::brandChanged, this, &VersionHistorySheet::lookAgain);
  reload();
}

void VersionHistorySheet::reload() {
  if (!document_) return;
  document_->listVersions([self = QPointer(this)](const QList<BrandVersion>& versions) {
    if (!self) return;
    self->versions_.setVersions(versions);
    if (self->chosen() < 0) self->choose(-1);
    if (std::exchange(self->isLoading_, false)) emit self->loadingChanged();
  });
}

int VersionHistorySheet::chosen() const {
  const auto& versions = versions_.versions();
  const auto found =
      std::find_if(versions.begin(), versions.end(),
                   [this](const BrandVersion& version) { return version.url == chosenURL_; });
  return found == versions.end() ? -1 : int(found - versions.begin());
}

void VersionHistorySheet::saveSnapshot() {
  if (!document_) return;
  document_->snapshotVersion(newLabel_.isEmpty() ? std::nullopt : std::optional(newLabel_));
  newLabel_.clear();
  emit newLabelChanged();
  reload();
  actions_.toast(QStringLiteral("Snapshot saved"));
}

void VersionHistorySheet::choose(int row) {
  const bool isNone = row < 0 || row >= versions_.count() || row == chosen();
  chosenURL_ = isNone ? QString() : versions_.versions().at(row).url;
  chosenName_.clear();
  chosenCounts_.clear();
  chosenDifferences_.clear();
  emit chosenChanged();
  if (!isNone) look(versions_.versions().at(row));
}

// What it is compared with has changed.
void VersionHistorySheet::lookAgain() {
  if (const int row = chosen(); row >= 0) look(versions_.versions().at(row));
}

void VersionHistorySheet::look(const BrandVersion& version) {
  if (!document_) return;
  document_->readVersion(version,
                         [self = QPointer(this), url = version.url](const Result<Brand>& brand) {
                           if (self && self->document_ && self->chosenURL_ == url)
                             self->tellOfChosen(brand);
                         });
}

void VersionHistorySheet::tellOfChosen(const Result<Brand>& brand) {
  if (brand) {
    chosenName_ = brand->name;
    chosenCounts_ = VersionSummary::counts(*brand);
    const QStringList lines = VersionSummary::differences(*brand, document_->brand());
    chosenDifferences_ =
        lines.isEmpty() ? QStringLiteral("The same as now")
                        : QStringLiteral("Compared with now: ") + lines.join(QStringLiteral("; "));
  } else {
    chosenDifferences_ = QStringLiteral("This version can’t be read any more.");
  }
  emit chosenChanged();
}

void VersionHistorySheet::restore(int row) {
  if (row < 0 || row >= versions_.count()) return;
  const auto answered = [self = QPointer(this),
                         version = versions_.versions().at(row)](Question::Answer answer) {
    if (self && answer == Question::Answer::Confirmed) self->carryOutRestore(version);
  };
  actions_.sheets.interrupt(std::make_unique<Question>(
      Question::Words{.title = inDesktopWords(QStringLiteral("Restore this version? Your current "
                                                             "state is replaced (⌘Z to undo).")),
                      .message = {},
                      .confirmText = QStringLiteral("Restore")},
      answered));
}

void VersionHistorySheet::carryOutRestore(const BrandVersion& version) {
  if (!document_) return;
  document_->restoreVersion(version, actions_.undoManager);
  actions_.toast(QStringLiteral("Restored · ⌘Z to undo"));
  emit finished();
}

void VersionHistorySheet::remove(int row) {
  if (!document_ || row < 0 || row >= versions_.count()) return;
  document_->deleteVersion(versions_.versions().at(row));
  reload();
}

}  // namespace tarnloft
