#include "platform/desktop/decoding/worker/FileDecoder.h"
#include "platform/desktop/decoding/worker/MappedFile.h"
#include "platform/desktop/fonts/FontFile.h"
#include "platform/desktop/fonts/FontTrial.h"

#include <QtEndian>

#include <cstring>

namespace tarnloft {
namespace {

using namespace decoding;

std::optional<Product> written(const QByteArray& bytes, std::span<std::byte> target) {
  if (bytes.isEmpty() || size_t(bytes.size()) > target.size()) return std::nullopt;
  std::memcpy(target.data(), bytes.constData(), size_t(bytes.size()));
  return Product{.bytes = std::uint64_t(bytes.size())};
}

class OpenFont : public ForeignFile {
 public:
  explicit OpenFont(int descriptor) : mapped_(descriptor) {
    const auto bytes = mapped_.bytes();
    font_ =
        freetype::FontFile::open(QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size())));
  }

  bool isFont() const { return font_ != nullptr; }

  // Unwrapping holds a face twice.
  Facts facts() override {
    return {.needs = limits::basicMemory + 3 * std::uint64_t(mapped_.bytes().size())};
  }

  std::optional<Product> make(const Request& request, std::span<std::byte> target) override {
    switch (request.action) {
      case Action::names: return written(names(), target);
      case Action::faces: return written(faces(), target);
      case Action::tryOut:
        return freetype::standsTrial(*font_) ? std::optional(Product{.bytes = 1}) : std::nullopt;
      default: return std::nullopt;
    }
  }

 private:
  QByteArray names() const {
    const auto names = font_->names();
    if (!names) return {};
    return names->family.toUtf8() + '\0' + names->style.value_or(QString()).toUtf8() + '\0';
  }

  QByteArray faces() const {
    QByteArray bytes;
    for (const QByteArray& face : font_->unwrapped()) {
      const quint64 size = qToLittleEndian(quint64(face.size()));
      bytes.append(reinterpret_cast<const char*>(&size), sizeof size);
      bytes.append(face);
    }
    return bytes;
  }

  MappedFile mapped_;
  std::unique_ptr<freetype::FontFile> font_;  // goes before its bytes
};

class FontDecoding : public FileDecoder {
 public:
  void prepare() override {}

  std::unique_ptr<ForeignFile> open(const Request&, int descriptor) override {
    auto font = std::make_unique<OpenFont>(descriptor);
    return font->isFont() ? std::move(font) : nullptr;
  }
};

}  // namespace

FileDecoder& decoding::moduleDecoder() {
  static FontDecoding decoder;
  return decoder;
}

}  // namespace tarnloft
