#include "platform/desktop/decoding/worker/FileDecoder.h"
#include "platform/desktop/decoding/worker/MappedFile.h"
#include "platform/desktop/images/ImageKind.h"
#include "platform/desktop/vectors/Surroundings.h"
#include "platform/desktop/vectors/VectorDocument.h"

#include <cmath>

namespace tarnloft {
namespace {

using namespace decoding;

struct ReleaseSurface {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};

bool isDrawable(PointSize size) {
  return std::isfinite(size.width) && std::isfinite(size.height) && size.width > 0 &&
         size.height > 0;
}

class VectorFile : public ForeignFile {
 public:
  explicit VectorFile(int descriptor) : file_(descriptor) {}

  bool open(ImageKind kind) {
    if (file_.bytes().empty() || file_.bytes().size() > limits::documentBytes) return false;
    document_ = kind == ImageKind::pdf ? openPdf(file_.bytes()) : openSvg(file_.bytes());
    const auto size = document_ ? document_->size() : std::nullopt;
    if (size) size_ = *size;
    return size && isDrawable(*size);
  }

  Facts facts() override {
    Facts facts;
    facts.pointsWidth = size_.width;
    facts.pointsHeight = size_.height;
    return facts;
  }

  std::optional<Product> make(const Request& request, std::span<std::byte> target) override {
    const int width = request.width, height = request.height;
    if (request.action != Action::draw || width < 1 || height < 1) return std::nullopt;
    const size_t bytes = size_t(width) * size_t(height) * 4;
    if (bytes > target.size()) return std::nullopt;
    const std::unique_ptr<cairo_surface_t, ReleaseSurface> surface(
        cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(target.data()),
                                            CAIRO_FORMAT_ARGB32, width, height, width * 4));
    const std::unique_ptr<cairo_t, ReleaseSurface> context(cairo_create(surface.get()));
    cairo_scale(context.get(), width / size_.width, height / size_.height);
    if (!document_->draw(context.get(), size_)) return std::nullopt;
    cairo_surface_flush(surface.get());
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return std::nullopt;
    return Product{width, height, 1, bytes};
  }

 private:
  MappedFile file_;
  std::unique_ptr<VectorDocument> document_;
  PointSize size_;
};

class VectorDecoding : public FileDecoder {
 public:
  void prepare() override {
    prepareSurroundings();
    drawLetters();
  }

  std::vector<std::string> folders() const override { return foldersOfFonts(); }

  std::unique_ptr<ForeignFile> open(const Request& request, int descriptor) override {
    auto file = std::make_unique<VectorFile>(descriptor);
    return file->open(ImageKind(request.kind)) ? std::move(file) : nullptr;
  }

 private:
  // Text makes the libraries find the desktop's fonts.
  static void drawLetters() {
    const auto document = openSvg(
        "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><text y='9'>a</text></svg>");
    if (!document) return;
    const std::unique_ptr<cairo_surface_t, ReleaseSurface> surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 9, 9));
    const std::unique_ptr<cairo_t, ReleaseSurface> context(cairo_create(surface.get()));
    document->draw(context.get(), {9, 9});
  }
};

}  // namespace

FileDecoder& decoding::moduleDecoder() {
  static VectorDecoding decoder;
  return decoder;
}

}  // namespace tarnloft
