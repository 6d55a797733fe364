#include "platform/desktop/fonts/FontFile.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <malloc.h>

namespace tarnloft::freetype {
namespace {

constexpr size_t mostMemory = size_t(128) << 20;
constexpr long mostFaces = 256;

// What no brand's font is made of.
constexpr std::array unusedDrivers = {"bdf", "pcf", "pfr", "t1cid", "type42", "winfonts"};

// How the kinds of file begin that the toolkit reads without unwrapping.
constexpr std::array plainBeginnings = {QByteArrayView("\0\1\0\0", 4), QByteArrayView("OTTO"),
                                        QByteArrayView("true"),        QByteArrayView("ttcf"),
                                        QByteArrayView("%!"),          QByteArrayView("\x80\1")};

bool isPlain(const QByteArray& bytes) {
  return std::any_of(plainBeginnings.begin(), plainBeginnings.end(),
                     [&](QByteArrayView beginning) { return bytes.startsWith(beginning); });
}

size_t& leftOf(FT_Memory memory) { return *static_cast<size_t*>(memory->user); }

}  // namespace

Library::Library() : left_(mostMemory), memory_{&left_, allocate, release, reallocate} {
  if (FT_New_Library(&memory_, &library_) != 0) return;
  FT_Add_Default_Modules(library_);
  for (const char* name : unusedDrivers) {
    if (FT_Module driver = FT_Get_Module(library_, name)) FT_Remove_Module(library_, driver);
  }
}

Library::~Library() {
  if (library_) FT_Done_Library(library_);
}

void* Library::allocate(FT_Memory memory, long size) {
  if (size < 0 || size_t(size) > leftOf(memory)) return nullptr;
  void* const block = std::malloc(size_t(size));
  leftOf(memory) -= std::min(leftOf(memory), ::malloc_usable_size(block));
  return block;
}

void* Library::reallocate(FT_Memory memory, long, long newSize, void* block) {
  const size_t present = ::malloc_usable_size(block);
  if (newSize < 0 || size_t(newSize) > leftOf(memory) + present) return nullptr;
  void* const moved = std::realloc(block, size_t(newSize));
  if (!moved) return nullptr;
  leftOf(memory) += present;
  leftOf(memory) -= std::min(leftOf(memory), ::malloc_usable_size(moved));
  return moved;
}

void Library::release(FT_Memory memory, void* block) {
  leftOf(memory) += ::malloc_usable_size(block);
  std::free(block);
}

std::unique_ptr<FontFile> FontFile::open(const QByteArray& bytes) {
  std::unique_ptr<FontFile> file(new FontFile(bytes));
  if (!file->library_.get()) return nullptr;
  file->first_ = file->openFace(0);
  const bool isFont = file->first_ && file->first_->num_faces <= mostFaces;
  return isFont ? std::move(file) : nullptr;
}

Face FontFile::openFace(long index) const {
  FT_Face face = nullptr;
  const auto* const data = reinterpret_cast<const FT_Byte*>(bytes_.constData());
  FT_New_Memory_Face(library_.get(), data, FT_Long(bytes_.size()), index, &face);
  return Face(face);
}

std::optional<FontNames> FontFile::names() const { return namesOf(first_.get()); }

QList<QByteArray> FontFile::unwrapped() const {
  if (isPlain(bytes_)) return {bytes_};
  QList<QByteArray> files;
  for (long index = 0; index < first_->num_faces; ++index) {
    const Face face = openFace(index);
    const auto file = face ? plainFileOf(face.get()) : std::nullopt;
    if (file) files << *file;
  }
  return files;
}

}  // namespace tarnloft::freetype
