#pragma once

#include "platform/GlobalHotKey.h"
#include "platform/SystemLog.h"

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QTimer>

#include <cstdint>
#include <vector>

struct xcb_connection_t;

namespace tarnloft {

// A key grabbed from an X server: it comes whichever window has the keyboard, with Caps Lock and
// Num Lock as they may be, and again where it moves to when the keyboard's layout changes. Held
// down it counts once. Needs a QGuiApplication on such a server.
class ServerHotKey : public QObject, public GlobalHotKey, private QAbstractNativeEventFilter {
  Q_OBJECT

 public:
  explicit ServerHotKey(SystemLog& log);
  ~ServerHotKey() override;
  Q_DISABLE_COPY_MOVE(ServerHotKey)

  void install(std::function<void()> pressed, std::function<void()> stateChanged) override;
  void update(quint32 keyCode, quint32 modifiers) override;
  State state() const override { return state_; }

 private:
  struct Grab {
    uint32_t root;
    uint8_t key;
    uint16_t modifiers;
  };

  void grab();
  void ungrab();
  // 0, or the error's code.
  int grab(const Grab& wanted) const;
  void setState(State state);
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

  SystemLog& log_;
  xcb_connection_t* const server_;
  uint8_t keyboardEvents_ = 0;  // of the server's extension for keyboards
  std::function<void()> pressed_;
  std::function<void()> stateChanged_;
  quint32 keysym_ = 0;
  uint16_t modifiers_ = 0;
  std::vector<Grab> grabs_;
  bool isDown_ = false;
  QTimer keyboardChange_;  // a moment after the last of several
  State state_ = State::off;
};

}  // namespace tarnloft
