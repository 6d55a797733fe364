#include "platform/desktop/images/BitmapFile.h"

#include "platform/desktop/decoding/worker/MappedFile.h"
#include "platform/desktop/images/BitmapDecoder.h"
#include "platform/desktop/images/CutFiles.h"
#include "platform/desktop/images/ImageEncoder.h"
#include "platform/desktop/images/Pipeline.h"
#include "platform/desktop/images/QtImages.h"
#include "platform/desktop/images/QtView.h"

#include <cstring>

namespace tarnloft {
namespace {

using namespace decoding;
using vips::VImage;

// What is left for a picture beside the rest that making something of it takes.
constexpr std::uint64_t mostForPixels = limits::mostMemory - limits::basicMemory;

// Makes pictures of what the kinds of files give.
class Bitmap : public ForeignFile {
 public:
  std::optional<Product> make(const Request& request, std::span<std::byte> target) override {
    const QSize size(request.width, request.height);
    if (size.isEmpty()) return std::nullopt;
    const VImage rendered = Pipeline::render(load(size), size);
    if (request.action == Action::draw) return QtView::write(rendered, target);
    if (request.action != Action::encode) return std::nullopt;
    const QByteArray bytes = encodeImage(rendered, ExportFormat(request.format), request.quality);
    if (size_t(bytes.size()) > target.size()) return std::nullopt;
    std::memcpy(target.data(), bytes.constData(), size_t(bytes.size()));
    return Product{.bytes = std::uint64_t(bytes.size())};
  }

 private:
  // At least of the size that is wanted, if it has as many pixels. Throws.
  virtual VImage load(QSize target) = 0;
};

class VipsBitmap : public Bitmap {
 public:
  explicit VipsBitmap(const ImageFile& file) : file_(file), header_(BitmapDecoder::header(file)) {}

  Facts facts() override {
    Facts facts;
    facts.width = header_.width();
    facts.height = header_.height();
    facts.hasAlpha = header_.has_alpha();
    const bool toldNothing =
        header_.xres() == 1;  // the library's default, in pixels per millimetre
    if (!toldNothing) facts.dpi = header_.xres() * 25.4;
    const std::uint64_t once = BitmapDecoder::footprint(file_.kind(), header_);
    const auto copies = std::uint64_t(BitmapDecoder::copiesOf(file_.kind()));
    // One that fits once is tried.
    facts.needs = std::max(once, std::min(once * copies, mostForPixels));
    facts.rowBytes = VIPS_IMAGE_SIZEOF_LINE(header_.get_image());
    return facts;
  }

 private:
  VImage load(QSize target) override {
    if (isCut(file_)) throw vips::VError("cut");
    return BitmapDecoder::load(file_, header_, target);
  }

  const ImageFile file_;
  const VImage header_;
};

class QtBitmap : public Bitmap {
 public:
  explicit QtBitmap(const ImageFile& file)
      : file_(file), mapped_(file.descriptor()), properties_(QtImages::properties(file, bytes())) {
    if (!properties_) throw vips::VError("no picture");
  }

  Facts facts() override {
    Facts facts;
    facts.width = properties_->size.width();
    facts.height = properties_->size.height();
    facts.hasAlpha = properties_->hasAlpha;
    facts.dpi = properties_->dpi.value_or(0);
    facts.needs = std::uint64_t(facts.width) * std::uint64_t(facts.height) * 11;
    return facts;
  }

 private:
  QByteArray bytes() const {
    return QByteArray::fromRawData(mapped_.bytes().data(), qsizetype(mapped_.bytes().size()));
  }

  VImage load(QSize) override {
    if (isCut(file_)) throw vips::VError("cut");
    pixels_ = QtImages::read(file_, bytes()).value_or(QImage());
    if (pixels_.isNull()) throw vips::VError("no pixels");
    return QtView::of(pixels_);
  }

  const ImageFile file_;
  const MappedFile mapped_;
  const std::optional<ImageProperties> properties_;
  QImage pixels_;
};

class PlainPixels : public Bitmap {
 public:
  PlainPixels(int descriptor, QSize size) : mapped_(descriptor), size_(size) {
    const bool isThere = !size.isEmpty() && mapped_.bytes().size() >= bytes();
    if (!isThere) throw vips::VError("no pixels");
  }

  Facts facts() override {
    Facts facts;
    facts.width = size_.width();
    facts.height = size_.height();
    facts.hasAlpha = 1;
    facts.needs = bytes();
    return facts;
  }

 private:
  size_t bytes() const { return size_t(size_.width()) * size_t(size_.height()) * 4; }

  VImage load(QSize) override {
    const auto* const data = reinterpret_cast<const uchar*>(mapped_.bytes().data());
    const QImage shared(data, size_.width(), size_.height(), QImage::Format_ARGB32_Premultiplied);
    straight_ = shared.convertToFormat(QImage::Format_RGBA8888);
    return QtView::of(straight_);
  }

  const MappedFile mapped_;
  const QSize size_;
  QImage straight_;
};

}  // namespace

std::unique_ptr<ForeignFile> openBitmap(const ImageFile& file) {
  if (file.kind() == ImageKind::bmp || file.kind() == ImageKind::ico) {
    return std::make_unique<QtBitmap>(file);
  }
  return std::make_unique<VipsBitmap>(file);
}

std::unique_ptr<ForeignFile> openPixels(int descriptor, QSize size) {
  return std::make_unique<PlainPixels>(descriptor, size);
}

}  // namespace tarnloft
