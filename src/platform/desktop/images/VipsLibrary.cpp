#include "platform/desktop/images/VipsLibrary.h"

#include <QtGlobal>

#include <vips/vips8>

namespace tarnloft {
namespace {

// Its complaints about foreign files are ours to judge.
void swallow(const gchar*, GLogLevelFlags, const gchar*, gpointer) {}

bool start() {
  if (VIPS_INIT("tarnloft") != 0) qFatal("libvips: %s", vips_error_buffer());
  g_log_set_handler("VIPS", GLogLevelFlags(G_LOG_LEVEL_WARNING | G_LOG_LEVEL_MESSAGE), swallow,
                    nullptr);
  vips_block_untrusted_set(TRUE);
  vips_operation_block_set("VipsForeignLoadMatrix", TRUE);  // reads any text with two numbers
  vips_concurrency_set(1);
  vips_cache_set_max(0);
  return true;
}

// Frees what the library keeps for a thread when that thread ends.
struct ThreadEnd {
  ~ThreadEnd() { vips_thread_shutdown(); }
};

}  // namespace

void useVips() {
  [[maybe_unused]] static const bool started = start();
  thread_local const ThreadEnd end;
  static_cast<void>(end);
}

}  // namespace tarnloft
