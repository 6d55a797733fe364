#pragma once

#include "platform/DragSession.h"
#include "platform/Pasteboard.h"

#include <QImage>
#include <QStringList>

#include <functional>

namespace tarnloft {

class ListedPasteboard : public Pasteboard {
 public:
  QStringList texts;
  QList<PasteboardForm> forms;
  void setText(const QString& text) override { texts << text; }
  void setForms(const QList<PasteboardForm>& all) override { forms = all; }
};

// Remembers what was dragged; `during` is what happens until the user lets go.
class ListedDrags : public DragSession {
 public:
  QList<DragItem> items;
  QImage picture;
  std::function<void()> during;
  void drag(const QList<DragItem>& dragged, const DragLook& look) override {
    items = dragged;
    picture = look.picture;
    if (during) during();
  }
};

}  // namespace tarnloft
