#pragma once

#include "controls/sheets/SheetModel.h"
#include "document/ItemBinding.h"
#include "pictures/ClipPlayback.h"
#include "platform/Preferences.h"

namespace tarnloft {

// The sheet that plays a video item's clip. It goes with the item. Main thread.
class VideoPlayerSheet : public tarnloft::SheetModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by those who want it")
  Q_PROPERTY(QString title READ title NOTIFY titleChanged)
  Q_PROPERTY(tarnloft::ClipPlayback* playback READ playback CONSTANT)
  Q_PROPERTY(QString elapsed READ elapsed NOTIFY timesChanged)  // as "0:07"
  Q_PROPERTY(
      QString remaining READ remaining NOTIFY timesChanged)  // as "−1:02"; empty while unknown

 public:
  // The item is a video, and the clip at `path` its own. How loud it is comes from the preferences
  // and goes there. The references are borrowed.
  VideoPlayerSheet(std::unique_ptr<ItemBinding> item, ClipPlayers& players,
                   Preferences& preferences, const QString& path);

  // What the item is called, else what its file was.
  const QString& title() const { return title_; }
  ClipPlayback* playback() { return &playback_; }
  QString elapsed() const;
  QString remaining() const;
  // As "0:07" or "1:02:07".
  static QString timeText(int seconds);

  // What a key does, with those held down; false for one that does nothing here.
  Q_INVOKABLE bool press(int key, int modifiers);

  QString view() const override { return viewURL("Sheets", "VideoPlayerSheetView"); }

 signals:
  void titleChanged();
  void timesChanged();

 private:
  void follow();
  int shownSeconds() const;

  const std::unique_ptr<ItemBinding> item_;
  QString title_;
  ClipPlayback playback_;
};

}  // namespace tarnloft
