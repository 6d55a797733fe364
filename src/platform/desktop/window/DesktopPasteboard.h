#pragma once

#include "platform/Pasteboard.h"

namespace tarnloft {

// Needs a Gui application.
class DesktopPasteboard : public Pasteboard {
 public:
  void setText(const QString& text) override;
  void setForms(const QList<PasteboardForm>& forms) override;
};

}  // namespace tarnloft
