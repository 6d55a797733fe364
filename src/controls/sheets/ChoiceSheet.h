#pragma once

#include "controls/sheets/SheetModel.h"

#include <QStringList>

#include <functional>

namespace tarnloft {

// A sheet that asks for one of many names, found by typing a part of it.
class ChoiceSheet : public SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want a choice")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString prompt READ prompt CONSTANT)
  Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
  // Those that hold the filter's text.
  Q_PROPERTY(QStringList names READ names NOTIFY filterChanged)

 public:
  struct Words {
    QString title;
    QString prompt;  // in the empty field
  };
  // Gets the place of the chosen name among all.
  using Chosen = std::function<void(qsizetype place)>;

  ChoiceSheet(const Words& words, const QStringList& names, Chosen chosen);

  const QString& title() const { return words_.title; }
  const QString& prompt() const { return words_.prompt; }
  const QString& filter() const { return filter_; }
  void setFilter(const QString& filter);
  const QStringList& names() const { return shown_; }

  // `row` counts among `names`; nothing happens if there is none.
  Q_INVOKABLE void choose(int row);

  QString view() const override { return viewURL("Controls", "ChoiceSheetView"); }

 signals:
  void filterChanged();

 private:
  const Words words_;
  const QStringList all_;
  const Chosen chosen_;
  QString filter_;
  QStringList shown_;
  QList<qsizetype> places_;  // of those that are shown
};

}  // namespace tarnloft
