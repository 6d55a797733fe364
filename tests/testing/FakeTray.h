#pragma once

#include "platform/GlobalHotKey.h"
#include "platform/StatusItem.h"
#include "platform/Taskbar.h"

#include <QIcon>
#include <QTest>

namespace tarnloft {

class FakeTray : public StatusItem {
 public:
  int installed = 0;
  std::function<void()> clicked;
  std::vector<Command> menu;

  void install(const QIcon& icon, const QString& /*toolTip*/, std::function<void()> onClick,
               std::vector<Command> commands) override {
    QVERIFY(!icon.isNull());
    ++installed;
    clicked = std::move(onClick);
    menu = std::move(commands);
  }
  bool isThere = true;
  std::function<void()> changed;
  void followTray(std::function<void()> call) override { changed = std::move(call); }
  bool isInTray() const override { return isThere; }
  QRect place() const override { return {}; }
};

class FakeTaskbar : public Taskbar {
 public:
  bool areShown = true;
  bool canHideWindows() const override { return true; }
  void setWindowsShown(bool shown) override { areShown = shown; }
};

class FakeHotKey : public GlobalHotKey {
 public:
  QList<HotKey> asked;
  State now = State::registered;
  std::function<void()> changed;

  void install(std::function<void()>, std::function<void()> stateChanged) override {
    changed = std::move(stateChanged);
  }
  void update(quint32 code, quint32 modifiers) override { asked << HotKey{code, modifiers}; }
  State state() const override { return now; }
};

}  // namespace tarnloft
