// Draws vector files for the main program, in a process of its own, since their libraries can be
// made to run for ever. Serves one request after another from a socket on standard input.
#include "platform/desktop/vectors/Confinement.h"
#include "platform/desktop/vectors/VectorDocument.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <unistd.h>

namespace tarnloft {
namespace {

constexpr int channel = STDIN_FILENO;

struct Surface {
  explicit Surface(int width, int height)
      : surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, width, height)),
        context(cairo_create(surface)) {}
  ~Surface() {
    cairo_destroy(context);
    cairo_surface_destroy(surface);
  }
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  cairo_surface_t* surface;
  cairo_t* context;
};

bool readAll(void* target, size_t size) {
  return size == 0 || ::recv(channel, target, size, MSG_WAITALL) == ssize_t(size);
}

bool writeAll(const void* source, size_t size) {
  const char* next = static_cast<const char*>(source);
  while (size > 0) {
    const ssize_t sent = ::send(channel, next, size, MSG_NOSIGNAL);
    if (sent <= 0) return false;
    next += sent;
    size -= size_t(sent);
  }
  return true;
}

bool fail() {
  const VectorReply none;
  return writeAll(&none, sizeof none);
}

bool isDrawable(PointSize size) {
  return std::isfinite(size.width) && std::isfinite(size.height) && size.width > 0 &&
         size.height > 0;
}

int pixels(double side) { return int(std::clamp(std::round(side), 1.0, 1e9)); }

// The size in pixels that a request asks of a document, in the reply.
VectorReply plan(const VectorRequest& request, PointSize size) {
  VectorReply reply{size.width, size.height, 0, 0};
  if (request.action == VectorAction::stretch) {
    reply.width = request.width;
    reply.height = request.height;
  } else if (request.action == VectorAction::fit) {
    const double scale = request.width / std::max(size.width, size.height);
    reply.width = pixels(size.width * scale);
    reply.height = pixels(size.height * scale);
  }
  return reply;
}

bool isBounded(const VectorReply& reply) {
  return reply.width > 0 && reply.height > 0 && reply.width <= vectorLimits::side &&
         reply.height <= vectorLimits::side &&
         std::int64_t(reply.width) * reply.height <= vectorLimits::pixels;
}

bool sendDrawing(VectorDocument& document, PointSize size, const VectorReply& reply) {
  const Surface target(reply.width, reply.height);
  cairo_scale(target.context, reply.width / size.width, reply.height / size.height);
  if (!document.draw(target.context, size)) return fail();
  cairo_surface_flush(target.surface);
  if (cairo_surface_status(target.surface) != CAIRO_STATUS_SUCCESS) return fail();
  const unsigned char* row = cairo_image_surface_get_data(target.surface);
  bool sent = writeAll(&reply, sizeof reply);
  for (int y = 0; sent && y < reply.height; ++y) {
    sent = writeAll(row, size_t(reply.width) * 4);
    row += cairo_image_surface_get_stride(target.surface);
  }
  return sent;
}

// False if the other side has gone.
bool serve(const VectorRequest& request, std::string_view bytes) {
  const auto document = request.kind == VectorKind::pdf ? openPdf(bytes) : openSvg(bytes);
  const auto size = document ? document->size() : std::nullopt;
  if (!size || !isDrawable(*size)) return fail();
  const VectorReply reply = plan(request, *size);
  if (request.action == VectorAction::measure) return writeAll(&reply, sizeof reply);
  return isBounded(reply) ? sendDrawing(*document, *size, reply) : fail();
}

bool awaitRequest() {
  pollfd waiting{channel, POLLIN, 0};
  return ::poll(&waiting, 1, vectorLimits::idleSeconds * 1000) == 1;
}

int run() {
  if (!confine()) return 1;
  VectorRequest request;
  while (awaitRequest() && readAll(&request, sizeof request)) {
    if (request.fileBytes > vectorLimits::fileBytes) return 1;
    limitProcessorTime(vectorLimits::processorSeconds);
    std::string bytes(request.fileBytes, '\0');
    if (!readAll(bytes.data(), bytes.size()) || !serve(request, bytes)) return 1;
  }
  return 0;
}

}  // namespace
}  // namespace tarnloft

int main() { return tarnloft::run(); }
