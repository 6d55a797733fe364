#pragma once

#include "assets/DropImport.h"
#include "controls/sheets/SheetModel.h"
#include "document/ItemBinding.h"
#include "pictures/Backdrop.h"
#include "pictures/Thumbnails.h"
#include "platform/DragSession.h"
#include "platform/FileDialogs.h"
#include "sheets/logos/LogoVariantList.h"

#include <QQuickItem>

namespace tarnloft {

// The sheet in which a logo set is named, gets its files, and loses them; each change at once. It
// goes with the set. Main thread.
class LogoSetSheet : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want it")
  Q_PROPERTY(QString name READ name WRITE setName NOTIFY changed)
  Q_PROPERTY(tarnloft::LogoVariantList* variants READ variants CONSTANT)
  Q_PROPERTY(bool canUngroup READ canUngroup NOTIFY changed)
  Q_PROPERTY(QStringList roles READ roles CONSTANT)  // to choose from
  Q_PROPERTY(tarnloft::Thumbnails* thumbnails READ thumbnails CONSTANT)

 public:
  // Borrowed: all outlive the sheet and the imports that it began.
  struct Services {
    FileDialogs& dialogs;
    ImportServices imports;
    DropReader& drops;
    Thumbnails& thumbnails;
  };
  struct Actions {
    // Drags a file of the set out of the program.
    std::function<void(const AssetRef& asset, const DragLook& look)> drag;
    // Breaks the set apart; null where that isn't offered.
    std::function<void()> ungroup = nullptr;
  };

  LogoSetSheet(std::unique_ptr<ItemBinding> item, const Services& services, Actions actions);

  QString name() const { return value().name; }
  void setName(const QString& name);
  LogoVariantList* variants() { return &variants_; }
  bool canUngroup() const { return actions_.ungroup && !value().variants.isEmpty(); }
  static QStringList roles();
  Thumbnails* thumbnails() const { return &services_.thumbnails; }

  // Asks for pictures and brings them in.
  Q_INVOKABLE void addVariants();
  // Whether a drag holds files, and the taking of them.
  bool takes(const QMimeData& drag) const;
  bool importDropped(const QMimeData& drop);

  // Of the file in that row.
  Q_INVOKABLE void setRole(int row, int role);
  Q_INVOKABLE void setBackdrop(int row, int backdrop);
  // Its file stays in the package.
  Q_INVOKABLE void remove(int row);
  // For `carryOut`.
  Q_INVOKABLE void drag(int row, QQuickItem* view, const QImage& grabbed, qreal radius);
  // Closes the sheet and breaks the set apart.
  Q_INVOKABLE void ungroup();

  QString view() const override { return viewURL("Sheets", "LogoSetSheetView"); }

 signals:
  void changed();

 private:
  const LogoValue& value() const { return std::get<LogoPayload>(item_->item().payload).value; }
  void follow();
  void edit(const std::function<void(LogoValue&)>& change);
  void editVariant(int row, const std::function<void(QList<LogoVariant>&, qsizetype)>& change);
  void import(const QStringList& paths);

  const std::unique_ptr<ItemBinding> item_;
  const Services services_;
  const Actions actions_;
  LogoVariantList variants_;
};

}  // namespace tarnloft
