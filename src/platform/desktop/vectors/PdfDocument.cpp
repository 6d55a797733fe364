#include "platform/desktop/vectors/VectorDocument.h"

#include <poppler.h>

namespace tarnloft {
namespace {

class PdfDocument : public VectorDocument {
 public:
  explicit PdfDocument(PopplerPage* page) : page_(page) {}
  ~PdfDocument() override { g_object_unref(page_); }
  PdfDocument(const PdfDocument&) = delete;
  PdfDocument& operator=(const PdfDocument&) = delete;

  std::optional<PointSize> size() override {
    PointSize size;
    poppler_page_get_size(page_, &size.width, &size.height);
    return size;
  }

  // On nothing: a page paints its own paper, or is a mark for any ground.
  bool draw(cairo_t* context, PointSize) override {
    poppler_page_render(page_, context);
    return cairo_status(context) == CAIRO_STATUS_SUCCESS;
  }

 private:
  PopplerPage* page_;  // keeps its document
};

}  // namespace

std::unique_ptr<VectorDocument> openPdf(std::string_view bytes) {
  GBytes* data = g_bytes_new_static(bytes.data(), bytes.size());
  PopplerDocument* document = poppler_document_new_from_bytes(data, nullptr, nullptr);
  g_bytes_unref(data);
  if (!document) return nullptr;
  PopplerPage* page = poppler_document_get_page(document, 0);
  g_object_unref(document);
  return page ? std::make_unique<PdfDocument>(page) : nullptr;
}

}  // namespace tarnloft
