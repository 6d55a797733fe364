#pragma once

#include "controls/sheets/SheetModel.h"
#include "document/BrandDocument.h"

#include <QColor>
#include <QPointer>

namespace tarnloft {

// The sheet in which a brand gets its accent colours, each change at once. It goes with the
// document. Main thread.
class AccentColorSheet : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want it")
  // The brand's accent, or the default one where it has none.
  Q_PROPERTY(QColor accent READ accent NOTIFY changed)
  Q_PROPERTY(bool own READ isOwn NOTIFY changed)  // the brand has one
  // Whether it has another one in the dark, and which.
  Q_PROPERTY(bool separateDark READ hasSeparateDark WRITE setSeparateDark NOTIFY changed)
  Q_PROPERTY(QColor darkAccent READ darkAccent NOTIFY changed)

 public:
  AccentColorSheet(BrandDocument& document, const QString& defaultHex);

  QColor accent() const;
  bool isOwn() const { return accentHex_.has_value(); }
  bool hasSeparateDark() const { return accentHexDark_.has_value(); }
  QColor darkAccent() const;
  // Begins with the accent in the light.
  void setSeparateDark(bool isSeparate);

  Q_INVOKABLE void pick(const QColor& color);
  Q_INVOKABLE void pickDark(const QColor& color);
  // Takes both from the brand.
  Q_INVOKABLE void useDefault();

  QString view() const override { return viewURL("Sheets", "AccentColorSheetView"); }

 signals:
  void changed();

 private:
  void follow();
  void edit(const std::function<void(Brand&)>& change);

  const QPointer<BrandDocument> document_;
  const QString defaultHex_;
  std::optional<QString> accentHex_;
  std::optional<QString> accentHexDark_;
};

}  // namespace tarnloft
