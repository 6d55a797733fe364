#include "quickgrab/MenuBarPrefs.h"

#include <cmath>
#include <limits>

namespace tarnloft {
namespace {

const QLatin1String keepRunningKey("mb.keepRunning");
const QLatin1String showDockKey("mb.showDock");
const QLatin1String showColorsKey("mb.showColors");
const QLatin1String showLogosKey("mb.showLogos");
const QLatin1String showTypeKey("mb.showType");
const QLatin1String showGradientsKey("mb.showGradients");
const QLatin1String showCodeKey("mb.showCode");
const QLatin1String hotKeyCodeKey("mb.hotKeyCode");
const QLatin1String hotKeyModifiersKey("mb.hotKeyModifiers");

const QLatin1String yes("true");
const QLatin1String no("false");

}  // namespace

MenuBarPrefs::MenuBarPrefs(Preferences& store, SystemLog& log)
    : store_(store),
      keepRunning_(readSwitch(keepRunningKey, true)),
      showDock_(readSwitch(showDockKey, true)),
      showColors_(readSwitch(showColorsKey, true)),
      showLogos_(readSwitch(showLogosKey, true)),
      showType_(readSwitch(showTypeKey, false)),
      showGradients_(readSwitch(showGradientsKey, false)),
      showCode_(readSwitch(showCodeKey, false)),
      hotKey_{readNumber(hotKeyCodeKey, HotKey().code, log),
              readNumber(hotKeyModifiersKey, HotKey().modifiers, log)} {}

bool MenuBarPrefs::readSwitch(QLatin1String key, bool byDefault) const {
  const QString stored = store_.text(key).value_or(QString());
  return stored == yes || (stored != no && byDefault);
}

quint32 MenuBarPrefs::readNumber(QLatin1String key, quint32 byDefault, SystemLog& log) const {
  const double stored = store_.number(key).value_or(byDefault);
  const bool isInteger = std::isfinite(stored) && std::trunc(stored) == stored;
  if (!isInteger) return byDefault;
  if (stored >= 0 && stored <= std::numeric_limits<quint32>::max()) return quint32(stored);
  log.write(QStringLiteral("preference out of range, using the default: ") + key);
  return byDefault;
}

void MenuBarPrefs::store(bool& field, QLatin1String key, bool on, void (MenuBarPrefs::*changed)()) {
  if (field == on) return;
  field = on;
  store_.setText(key, on ? yes : no);
  emit(this->*changed)();
}

bool MenuBarPrefs::hasAnyAssetTypeEnabled() const {
  return showColors_ || showLogos_ || showType_ || showGradients_ || showCode_;
}

void MenuBarPrefs::setKeepRunning(bool keep) {
  store(keepRunning_, keepRunningKey, keep, &MenuBarPrefs::keepRunningChanged);
}

void MenuBarPrefs::setShowDock(bool show) {
  store(showDock_, showDockKey, show, &MenuBarPrefs::showDockChanged);
}

void MenuBarPrefs::setShowColors(bool show) {
  store(showColors_, showColorsKey, show, &MenuBarPrefs::assetTypesChanged);
}

void MenuBarPrefs::setShowLogos(bool show) {
  store(showLogos_, showLogosKey, show, &MenuBarPrefs::assetTypesChanged);
}

void MenuBarPrefs::setShowType(bool show) {
  store(showType_, showTypeKey, show, &MenuBarPrefs::assetTypesChanged);
}

void MenuBarPrefs::setShowGradients(bool show) {
  store(showGradients_, showGradientsKey, show, &MenuBarPrefs::assetTypesChanged);
}

void MenuBarPrefs::setShowCode(bool show) {
  store(showCode_, showCodeKey, show, &MenuBarPrefs::assetTypesChanged);
}

void MenuBarPrefs::setHotKey(const HotKey& hotKey) {
  if (hotKey_ == hotKey) return;
  hotKey_ = hotKey;
  store_.setNumber(hotKeyCodeKey, hotKey.code);
  store_.setNumber(hotKeyModifiersKey, hotKey.modifiers);
  emit hotKeyChanged();
}

}  // namespace tarnloft
