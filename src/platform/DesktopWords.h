#pragma once

#include <QString>

#include <array>

namespace tarnloft {

struct DesktopWord {
  QStringView told;
  QStringView here;
};

// What the interface's texts call a thing of another desktop, and the running desktop's word.
inline constexpr std::array desktopWords{
    DesktopWord{u"Reveal in Finder", u"Show in File Manager"},
    DesktopWord{u"Reveal Primary in Finder", u"Show Primary in File Manager"},
    DesktopWord{u"“.tarnloft” file", u"“.tarnloft” package"},
    DesktopWord{u"an iCloud Drive or Dropbox folder", u"a Nextcloud or Dropbox folder"},
    DesktopWord{u"your Macs", u"your computers"},
    DesktopWord{u"Show Dock icon", u"Show in taskbar"},
    DesktopWord{u"With the Dock icon off", u"When it isn't shown in the taskbar"},
    DesktopWord{u"menu bar", u"tray"},
    DesktopWord{u"Menu Bar", u"Tray"},
    DesktopWord{u"⌃⌘P", u"Ctrl+P"},
    DesktopWord{u"⌃⌘Space", u"Super+."},
    DesktopWord{u"⌘Z", u"Ctrl+Z"},
};

// The text as it is shown here.
inline QString inDesktopWords(QString text) {
  for (const DesktopWord& word : desktopWords)
    text.replace(word.told.toString(), word.here.toString());
  return text;
}

}  // namespace tarnloft
