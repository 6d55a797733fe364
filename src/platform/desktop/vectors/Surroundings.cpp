#include "platform/desktop/vectors/Surroundings.h"

#include <fontconfig/fontconfig.h>
#include <iconv.h>

namespace tarnloft {
namespace {

void append(std::vector<std::string>& folders, FcStrList* list) {
  if (!list) return;
  while (const FcChar8* const folder = FcStrListNext(list)) {
    folders.emplace_back(reinterpret_cast<const char*>(folder));
  }
  FcStrListDone(list);
}

}  // namespace

void prepareSurroundings() {
  FcInit();
  FcConfigSetRescanInterval(nullptr, 0);  // it would look for new fonts where it can't any more
  // A converter that is open stays loaded; each is.
  for (const char* encoding :
       {"ISO-8859-1",   "ISO-8859-2",   "ISO-8859-5",   "ISO-8859-7",   "ISO-8859-9",
        "ISO-8859-15",  "WINDOWS-1250", "WINDOWS-1251", "WINDOWS-1252", "WINDOWS-1253",
        "WINDOWS-1254", "KOI8-R",       "MACINTOSH",    "SHIFT_JIS",    "EUC-JP",
        "ISO-2022-JP",  "EUC-KR",       "GB18030",      "GBK",          "BIG5"}) {
    static_cast<void>(::iconv_open("UTF-8", encoding));
  }
}

std::vector<std::string> foldersOfFonts() {
  std::vector<std::string> folders{"/usr/share/poppler"};
  append(folders, FcConfigGetFontDirs(nullptr));
  append(folders, FcConfigGetCacheDirs(nullptr));
  return folders;
}

}  // namespace tarnloft
