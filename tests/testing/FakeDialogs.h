#pragma once

#include "platform/FileDialogs.h"
#include "platform/FileViewer.h"

#include <QStringList>

#include <functional>

namespace tarnloft {

// Answers the dialogs as the test told it.
class ScriptedDialogs : public FileDialogs {
 public:
  std::optional<QString> answer;
  std::function<void()> whileSaving;  // what happens while the dialog is open
  QString suggested;
  QString mimeType;
  std::optional<QString> savePath(const QString& name, const QString& type) override {
    suggested = name;
    mimeType = type;
    if (whileSaving) whileSaving();
    return answer;
  }
  QStringList openTypes;
  QStringList chosen;
  QStringList openFiles(const QStringList& types) override {
    openTypes = types;
    return chosen;
  }
  std::optional<QString> openFile(const QStringList& types) override {
    openTypes = types;
    return answer;
  }
  std::optional<QString> openFileOrFolder(const QStringList& types,
                                          const QStringList& /*extensions*/) override {
    openTypes = types;
    return answer;
  }
  QString folderFrom;
  std::optional<QString> chooseFolder(const QString& from, const QString& /*accept*/) override {
    folderFrom = from;
    return answer;
  }
};

class ListedViewer : public FileViewer {
 public:
  QStringList revealed;
  void reveal(const QString& path) override { revealed << path; }
};

}  // namespace tarnloft
