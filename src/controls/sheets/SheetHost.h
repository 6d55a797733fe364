#pragma once

#include "controls/sheets/SheetModel.h"

#include <memory>
#include <vector>

namespace tarnloft {

// What a window has up: its sheets, questions and popovers, one at a time. The view of the one in
// front is made by SheetStage, which the window has once. Main thread.
class SheetHost : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Each window has one")
  // The one in front; null for none.
  Q_PROPERTY(tarnloft::SheetModel* current READ current NOTIFY currentChanged)

 public:
  explicit SheetHost(QObject* parent = nullptr) : QObject(parent) {}
  ~SheetHost() override;
  Q_DISABLE_COPY_MOVE(SheetHost)

  SheetModel* current() const { return sheets_.empty() ? nullptr : sheets_.front().get(); }

  // Shows it as soon as none is up that was wanted before. Gives it back, for connections.
  template <class Model>
  Model* show(std::unique_ptr<Model> sheet) {
    Model* const shown = sheet.get();
    add(std::move(sheet), sheets_.end());
    return shown;
  }
  // Shows it at once; what is up comes back behind it.
  template <class Model>
  Model* interrupt(std::unique_ptr<Model> sheet) {
    Model* const shown = sheet.get();
    add(std::move(sheet), sheets_.begin());
    return shown;
  }

  // For the stage: the view of that one has closed.
  Q_INVOKABLE void closed(tarnloft::SheetModel* sheet);

 signals:
  void currentChanged();
  // The view of the one in front shall close.
  void closing();

 private:
  using Sheets = std::vector<std::unique_ptr<SheetModel>>;

  void add(std::unique_ptr<SheetModel> sheet, Sheets::iterator before);
  void close(SheetModel* sheet);
  void end(SheetModel* sheet);
  bool hasStage() const;

  Sheets sheets_;  // the one in front first
};

}  // namespace tarnloft
