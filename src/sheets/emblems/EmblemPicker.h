#pragma once

#include "assets/DropImport.h"
#include "controls/sheets/SheetModel.h"
#include "pictures/EmblemLook.h"
#include "pictures/Thumbnails.h"
#include "platform/FileDialogs.h"
#include "sheets/emblems/EmblemSubject.h"
#include "sheets/emblems/EmblemWords.h"

#include <QColor>
#include <QStringList>

namespace tarnloft {

// The sheet that gives a brand or a section its emblem, each change at once. It goes with what it
// edits. Main thread.
class EmblemPicker : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want it")
  Q_PROPERTY(QString title READ title CONSTANT)
  Q_PROPERTY(tarnloft::Thumbnails* thumbnails READ thumbnails CONSTANT)
  Q_PROPERTY(QList<QColor> swatches READ swatches CONSTANT)  // the brand's own colours
  // The emblem as it is shown in its place.
  Q_PROPERTY(tarnloft::EmblemLook look READ look NOTIFY changed)
  Q_PROPERTY(Kind kind READ kind WRITE setKind NOTIFY changed)
  // The chosen one; empty while the emblem is none.
  Q_PROPERTY(QString symbol READ symbol WRITE setSymbol NOTIFY changed)
  Q_PROPERTY(QString emoji READ emoji WRITE setEmoji NOTIFY changed)
  Q_PROPERTY(bool useBackground READ usesBackground WRITE setUseBackground NOTIFY changed)
  Q_PROPERTY(QColor swatch READ swatch WRITE setSwatch NOTIFY changed)
  Q_PROPERTY(bool hasImage READ hasImage NOTIFY changed)
  // What is typed to find a symbol, and the names found.
  Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
  Q_PROPERTY(QStringList symbols READ symbols NOTIFY queryChanged)
  Q_PROPERTY(int symbolPlace READ symbolPlace NOTIFY placeChanged)  // of the chosen one, or -1

 public:
  // In the order in which they are offered.
  enum class Kind { Symbol, Emoji, Color, Image };
  Q_ENUM(Kind)

  using Words = EmblemWords;
  // Borrowed: all outlive the sheet and the imports that it began.
  struct Services {
    FileDialogs& dialogs;
    ImportServices imports;
    Thumbnails& thumbnails;
  };

  EmblemPicker(const EmblemSubject& subject, const Words& words, const Services& services);

  const QString& title() const { return words_.title; }
  Thumbnails* thumbnails() const { return &services_.thumbnails; }
  const QList<QColor>& swatches() const { return swatches_; }
  EmblemLook look() const;

  Kind kind() const { return kind_; }
  QString symbol() const;
  const QString& emoji() const { return emoji_; }
  bool usesBackground() const { return usesBackground_; }
  const QColor& swatch() const { return swatch_; }
  bool hasImage() const { return asset_.has_value(); }

  // Each writes the emblem anew; an image, once there is one.
  void setKind(Kind kind);
  void setSymbol(const QString& name);
  // The last character of the text counts.
  void setEmoji(const QString& text);
  void setUseBackground(bool used);
  void setSwatch(const QColor& color);
  // Asks for a picture's file and brings it in.
  Q_INVOKABLE void chooseImage();
  // An emblem that says that there is none, and no emblem, for what its place shows then.
  Q_INVOKABLE void setNone();
  Q_INVOKABLE void useDefault();

  const QString& query() const { return query_; }
  void setQuery(const QString& query);
  const QStringList& symbols() const { return symbols_; }
  int symbolPlace() const { return int(symbols_.indexOf(symbol())); }
  Q_INVOKABLE static QString spoken(const QString& symbol);
  // Emoji that are offered, and how to get at others.
  Q_INVOKABLE static QStringList presets();
  Q_INVOKABLE static QString emojiTip();

  QString view() const override { return viewURL("Sheets", "EmblemPickerView"); }

 signals:
  void changed();
  void queryChanged();
  void placeChanged();

 private:
  void follow();
  void takeDraft();
  void rebuild();
  void store(const std::optional<Emblem>& emblem);
  std::optional<QString> groundHex() const;

  const EmblemSubject subject_;
  const Words words_;
  const Services services_;
  const QList<QColor> swatches_;
  std::optional<Emblem> emblem_;  // as it was read or written last

  // The draft.
  Kind kind_ = Kind::Symbol;
  QString symbol_;
  QString emoji_;
  bool usesBackground_ = true;
  QColor swatch_;
  std::optional<AssetRef> asset_;
  std::shared_ptr<bool> awaited_;  // a picture on its way is still wanted

  QString query_;
  QStringList symbols_;
};

}  // namespace tarnloft
