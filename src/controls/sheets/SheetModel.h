#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tarnloft {

// What a sheet, a question or a popover shows and does. Whoever wants one up makes its model and
// hands it to the window's SheetHost, which owns it from then on and makes the view that it names.
// What the user has typed stands in the model, as views come and go. Those of other modules name
// their base in full, which is how the registration of types finds it. Main thread.
class SheetModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want a sheet")
  Q_PROPERTY(QString view READ view CONSTANT)

 public:
  // The address of its view's file, a Sheet with a required property `model` of the model's own
  // type.
  virtual QString view() const = 0;

  // Of the file of that name in the module of that name.
  static QString viewURL(const char* module, const char* name);

  // It has left the window, and goes after this.
  virtual void ended() {}

 signals:
  // It isn't wanted any more: its subject has gone, or its work is done. The host closes it.
  void finished();
};

}  // namespace tarnloft
