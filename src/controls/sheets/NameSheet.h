#pragma once

#include "controls/sheets/SheetModel.h"

#include <functional>

namespace tarnloft {

// A sheet that asks for one name.
class NameSheet : public SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want a name")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(QString prompt READ prompt CONSTANT)
  Q_PROPERTY(QString confirmText READ confirmText CONSTANT)
  Q_PROPERTY(QString footnote READ footnote CONSTANT)
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
  // A name of blanks can't be confirmed.
  Q_PROPERTY(bool confirmable READ isConfirmable NOTIFY textChanged)

 public:
  struct Words {
    QString title;
    QString prompt = QStringLiteral("Name");  // in the empty field
    QString confirmText = QStringLiteral("Save");
    QString footnote = {};  // what else a name does
  };
  // Gets the confirmed name, trimmed and never empty.
  using Named = std::function<void(const QString& name)>;

  NameSheet(const Words& words, const QString& text, Named named)
      : words_(words), text_(text), named_(std::move(named)) {}

  const QString& title() const { return words_.title; }
  const QString& prompt() const { return words_.prompt; }
  const QString& confirmText() const { return words_.confirmText; }
  const QString& footnote() const { return words_.footnote; }
  const QString& text() const { return text_; }
  void setText(const QString& text);
  bool isConfirmable() const { return !text_.trimmed().isEmpty(); }

  // Nothing happens if the name can't be confirmed.
  Q_INVOKABLE void confirm();

  QString view() const override { return viewURL("Controls", "NameSheetView"); }

 signals:
  void textChanged();

 private:
  const Words words_;
  QString text_;
  const Named named_;
};

}  // namespace tarnloft
