#include "quickgrab/MenuBarPrefs.h"

namespace tarnloft {
namespace {

const auto keepRunningKey = QLatin1String("mb.keepRunning");
const auto yes = QLatin1String("true");
const auto no = QLatin1String("false");

}  // namespace

MenuBarPrefs::MenuBarPrefs(Preferences& store)
    : store_(store), keepRunning_(store.text(keepRunningKey) != no) {}

void MenuBarPrefs::setKeepRunning(bool keep) {
  keepRunning_ = keep;
  store_.setText(keepRunningKey, keep ? yes : no);
}

}  // namespace tarnloft
