#pragma once

#include "controls/sheets/SheetModel.h"
#include "document/ItemBinding.h"
#include "sheets/UsageNoteList.h"

namespace tarnloft {

// The sheet that edits an item's rules for its use, each change at once. It goes with the item.
// Main thread.
class UsageNotesSheet : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want it")
  Q_PROPERTY(QString title READ title NOTIFY titleChanged)
  Q_PROPERTY(tarnloft::UsageNoteList* notes READ notes CONSTANT)

 public:
  // In the order in which they are offered.
  enum class Kind { DoRule, DontRule, Note };
  Q_ENUM(Kind)

  explicit UsageNotesSheet(std::unique_ptr<ItemBinding> item);

  // The item's name.
  const QString& title() const { return title_; }
  UsageNoteList* notes() { return &notes_; }

  // Appends a rule of that kind without a text.
  Q_INVOKABLE void add(Kind kind);
  // Of the rule in that row.
  Q_INVOKABLE void setKind(int row, Kind kind);
  Q_INVOKABLE void setText(int row, const QString& text);
  Q_INVOKABLE void remove(int row);

  QString view() const override { return viewURL("Sheets", "UsageNotesSheetView"); }

 signals:
  void titleChanged();

 private:
  void follow();
  void edit(int row, const std::function<void(QList<UsageNote>& notes, qsizetype place)>& change);
  void store(const std::function<void(QList<UsageNote>& notes)>& change);

  const std::unique_ptr<ItemBinding> item_;
  QString title_;
  UsageNoteList notes_;
};

}  // namespace tarnloft
