#include "platform/desktop/vectors/VectorDocument.h"

#include <gio/gio.h>
#include <librsvg/rsvg.h>

namespace tarnloft {
namespace {

class SvgDocument : public VectorDocument {
 public:
  explicit SvgDocument(RsvgHandle* handle) : handle_(handle) { rsvg_handle_set_dpi(handle, 72); }
  ~SvgDocument() override { g_object_unref(handle_); }
  SvgDocument(const SvgDocument&) = delete;
  SvgDocument& operator=(const SvgDocument&) = delete;

  std::optional<PointSize> size() override {
    PointSize size;
    if (rsvg_handle_get_intrinsic_size_in_pixels(handle_, &size.width, &size.height)) return size;
    gboolean hasWidth, hasHeight, hasViewBox;
    RsvgLength width, height;
    RsvgRectangle viewBox;
    rsvg_handle_get_intrinsic_dimensions(handle_, &hasWidth, &width, &hasHeight, &height,
                                         &hasViewBox, &viewBox);
    if (hasViewBox) return PointSize{viewBox.width, viewBox.height};
    return inkSize();
  }

  bool draw(cairo_t* context, PointSize size) override {
    const RsvgRectangle viewport{0, 0, size.width, size.height};
    return rsvg_handle_render_document(handle_, context, &viewport, nullptr);
  }

 private:
  // Of a drawing that tells no size: as far as it reaches from its origin.
  std::optional<PointSize> inkSize() {
    constexpr RsvgRectangle viewport{0, 0, 100, 100};
    RsvgRectangle ink;
    if (!rsvg_handle_get_geometry_for_layer(handle_, nullptr, &viewport, &ink, nullptr, nullptr)) {
      return std::nullopt;
    }
    return PointSize{ink.x + ink.width, ink.y + ink.height};
  }

  RsvgHandle* handle_;
};

}  // namespace

std::unique_ptr<VectorDocument> openSvg(std::string_view bytes) {
  GInputStream* stream =
      g_memory_input_stream_new_from_data(bytes.data(), gssize(bytes.size()), nullptr);
  RsvgHandle* handle =
      rsvg_handle_new_from_stream_sync(stream, nullptr, RSVG_HANDLE_FLAGS_NONE, nullptr, nullptr);
  g_object_unref(stream);
  return handle ? std::make_unique<SvgDocument>(handle) : nullptr;
}

}  // namespace tarnloft
