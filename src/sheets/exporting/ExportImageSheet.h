#pragma once

#include "assets/DragPreparation.h"
#include "assets/ExportEstimate.h"
#include "assets/ExportImageSize.h"
#include "controls/sheets/SheetModel.h"
#include "document/ItemBinding.h"
#include "library/LibraryPreferences.h"
#include "pictures/Thumbnails.h"
#include "platform/DragSession.h"
#include "platform/FileDialogs.h"
#include "platform/FileStore.h"
#include "platform/Pasteboard.h"

#include <QQuickItem>

namespace tarnloft {

// The sheet that hands out a picture in another format and size: copied, saved or dragged. It goes
// with the item that the picture belongs to. Main thread; pictures are converted by workers.
class ExportImageSheet : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want it")
  Q_PROPERTY(QString baseName READ baseName CONSTANT)
  Q_PROPERTY(QString path READ path CONSTANT)
  Q_PROPERTY(tarnloft::Thumbnails* thumbnails READ thumbnails CONSTANT)
  Q_PROPERTY(QString original READ original CONSTANT)  // its size, as a line
  // What will come, or why it doesn't, as a line.
  Q_PROPERTY(QString estimate READ estimate NOTIFY estimateChanged)
  Q_PROPERTY(QStringList formats READ formats CONSTANT)
  Q_PROPERTY(int format READ format WRITE setFormat NOTIFY changed)  // its place among them
  Q_PROPERTY(QString formatName READ formatName NOTIFY changed)
  Q_PROPERTY(bool lossy READ isLossy NOTIFY changed)
  Q_PROPERTY(double quality READ quality WRITE setQuality NOTIFY changed)  // 0 to 1
  Q_PROPERTY(int width READ width WRITE setWidth NOTIFY changed)
  Q_PROPERTY(int height READ height WRITE setHeight NOTIFY changed)
  Q_PROPERTY(bool lockAspect READ lockAspect WRITE setLockAspect NOTIFY changed)
  Q_PROPERTY(QStringList presets READ presets CONSTANT)
  // A copy or a file is being made.
  Q_PROPERTY(bool busy READ isBusy NOTIFY busyChanged)

 public:
  // Borrowed: all outlive the sheet, and the conversions that it began.
  struct Services {
    LibraryPreferences& preferences;
    Images& images;
    BackgroundWork& work;
    FileStore& files;
    FileDialogs& dialogs;
    Pasteboard& pasteboard;
    DragSession& dragSession;
    QThreadPool& dragThreads;  // for DragPreparation
    Thumbnails& thumbnails;
    // Tells the user why a file couldn't be written, when the sheet may have closed.
    std::function<void(const QString& title, const QString& reason)> tell;
  };

  ExportImageSheet(std::unique_ptr<ItemBinding> item, const ExportTarget& target,
                   const Services& services);

  const QString& baseName() const { return target_.baseName; }
  const QString& path() const { return target_.url; }
  Thumbnails* thumbnails() const { return &services_.thumbnails; }
  QString original() const;
  QString estimate() const;
  static QStringList formats();
  int format() const { return int(services_.preferences.lastExportFormat()); }
  void setFormat(int format);
  QString formatName() const;
  bool isLossy() const;
  double quality() const { return services_.preferences.lastExportQuality(); }
  void setQuality(double quality);
  int width() const { return size_.width(); }
  int height() const { return size_.height(); }
  bool lockAspect() const { return size_.lockAspect(); }
  void setWidth(int width);
  void setHeight(int height);
  void setLockAspect(bool locked);
  QStringList presets() const;
  Q_INVOKABLE void applyPreset(int preset);
  bool isBusy() const { return isBusy_; }

  // Puts it on the clipboard and closes the sheet; stays open, and tells, if it can't be converted.
  Q_INVOKABLE void copy();
  // The same into a file that the user chooses when the sheet has closed.
  Q_INVOKABLE void save();
  // A drag may follow: what it carries is made ready.
  Q_INVOKABLE void prepareDrag();
  // For `carryOut`.
  Q_INVOKABLE void drag(QQuickItem* view, const QImage& grabbed, qreal radius);

  QString view() const override { return viewURL("Sheets", "ExportImageSheetView"); }

 signals:
  void changed();
  void estimateChanged();
  void busyChanged();

 private:
  ExportChoice choice() const;
  void resize(const std::function<void(ExportImageSize&)>& change);
  void followChoice();
  void setBusy(bool busy);
  // In the sheet itself, as it lies over all else.
  void setNote(const QString& note);
  QString dragKey() const { return target_.path() + choice().key(); }
  std::function<QList<DragItem>()> dragWork() const;

  const std::unique_ptr<ItemBinding> item_;
  const ExportTarget target_;
  const Services services_;
  ExportImageSize size_;
  ExportEstimate estimate_;
  DragPreparation dragPreparation_{services_.dragThreads};
  QString note_;  // what went wrong; empty for nothing
  bool isBusy_ = false;
};

}  // namespace tarnloft
