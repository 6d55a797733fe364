#include "platform/desktop/window/WindowActivation.h"

#include "platform/desktop/window/WaylandExtension.h"

#include <QByteArray>

#include <xdg-activation-v1-client.h>

namespace tarnloft {
namespace {

constexpr auto variable = "XDG_ACTIVATION_TOKEN";

void told(void* token, xdg_activation_token_v1* /*sender*/, const char* text) {
  *static_cast<QByteArray*>(token) = text;
}

}  // namespace

void allowActivation() {
  if (!qEnvironmentVariableIsEmpty(variable)) return;
  WaylandExtension extension(xdg_activation_v1_interface);
  auto* const activation = extension.object<xdg_activation_v1>();
  if (!activation) return;
  xdg_activation_token_v1* const request = xdg_activation_v1_get_activation_token(activation);
  QByteArray token;
  static const xdg_activation_token_v1_listener listener{&told};
  xdg_activation_token_v1_add_listener(request, &listener, &token);
  xdg_activation_token_v1_commit(request);
  extension.waitForAnswers();
  xdg_activation_token_v1_destroy(request);
  xdg_activation_v1_destroy(activation);
  if (!token.isEmpty()) qputenv(variable, token);
}

}  // namespace tarnloft
