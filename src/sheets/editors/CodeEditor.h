#pragma once

#include "sheets/editors/ItemEditor.h"

namespace tarnloft {

class CodeEditor : public tarnloft::ItemEditor {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Belongs to a sheet")
  Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY changed)
  Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)  // empty for none
  Q_PROPERTY(QString snippet READ snippet WRITE setSnippet NOTIFY changed)

 public:
  using ItemEditor::ItemEditor;

  QString language() const;
  QString name() const;
  QString snippet() const;
  void setLanguage(const QString& language);
  void setName(const QString& name);
  void setSnippet(const QString& snippet);
};

}  // namespace tarnloft
