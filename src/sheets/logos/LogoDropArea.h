#pragma once

#include "controls/dragging/DropReceiver.h"
#include "sheets/logos/LogoSetSheet.h"

namespace tarnloft {

// Takes files that are dropped on a logo set's sheet.
class LogoDropArea : public tarnloft::DropReceiver {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tarnloft::LogoSetSheet* sheet MEMBER sheet_ NOTIFY sheetChanged REQUIRED)

 public:
  using DropReceiver::DropReceiver;

 signals:
  void sheetChanged();

 protected:
  bool takes(const QMimeData& data) const override { return sheet_ && sheet_->takes(data); }
  bool take(const QMimeData& data) override { return sheet_ && sheet_->importDropped(data); }

 private:
  QPointer<LogoSetSheet> sheet_;
};

}  // namespace tarnloft
