#pragma once

#include "controls/sheets/SheetHost.h"
#include "document/BrandDocument.h"
#include "sheets/versions/VersionList.h"

#include <QPointer>

namespace tarnloft {

// The sheet of a brand's versions: keeps one, shows what one holds, restores one, deletes one. It
// goes with the document. The list is read away from the main thread. Main thread.
class VersionHistorySheet : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want it")
  Q_PROPERTY(tarnloft::VersionList* versions READ versions CONSTANT)
  Q_PROPERTY(bool loading READ isLoading NOTIFY loadingChanged)  // until the first list is there
  Q_PROPERTY(QString newLabel MEMBER newLabel_ NOTIFY newLabelChanged)
  // The row that is looked at, -1 for none, and what its version holds; empty until it is read.
  Q_PROPERTY(int chosen READ chosen NOTIFY chosenChanged)
  Q_PROPERTY(QString chosenName READ chosenName NOTIFY chosenChanged)
  Q_PROPERTY(QString chosenCounts READ chosenCounts NOTIFY chosenChanged)
  Q_PROPERTY(QString chosenDifferences READ chosenDifferences NOTIFY chosenChanged)

 public:
  struct Actions {
    UndoManager* undoManager;  // null for none
    SheetHost& sheets;
    std::function<void(const QString&)> toast;
  };

  // All of the actions outlive the sheet.
  VersionHistorySheet(BrandDocument& document, const Actions& actions);

  VersionList* versions() { return &versions_; }
  bool isLoading() const { return isLoading_; }
  int chosen() const;
  const QString& chosenName() const { return chosenName_; }
  const QString& chosenCounts() const { return chosenCounts_; }
  const QString& chosenDifferences() const { return chosenDifferences_; }

  // Keeps the brand as it is, under `newLabel`.
  Q_INVOKABLE void saveSnapshot();
  // Looks into the version in that row; at the chosen one again, no more.
  Q_INVOKABLE void choose(int row);
  // Asks first.
  Q_INVOKABLE void restore(int row);
  Q_INVOKABLE void remove(int row);

  QString view() const override { return viewURL("Sheets", "VersionHistorySheetView"); }

 signals:
  void loadingChanged();
  void newLabelChanged();
  void chosenChanged();

 private:
  void reload();
  void lookAgain();
  void look(const BrandVersion& version);
  void tellOfChosen(const Result<Brand>& brand);
  void carryOutRestore(const BrandVersion& version);

  const QPointer<BrandDocument> document_;
  const Actions actions_;
  VersionList versions_;
  bool isLoading_ = true;
  QString newLabel_;
  QString chosenURL_;
  QString chosenName_;
  QString chosenCounts_;
  QString chosenDifferences_;
};

}  // namespace tarnloft
