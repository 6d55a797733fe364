#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace tarnloft {

struct PasteboardForm {
  QString mimeType;
  QByteArray bytes;
};

// The desktop's clipboard. Main thread.
class Pasteboard {
 public:
  virtual ~Pasteboard() = default;

  // Each replaces what is on it.
  virtual void setText(const QString& text) = 0;
  // One thing in several forms.
  virtual void setForms(const QList<PasteboardForm>& forms) = 0;
};

}  // namespace tarnloft
