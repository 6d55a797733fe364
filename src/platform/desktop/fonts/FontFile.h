#pragma once

#include "platform/Fonts.h"

#include <QByteArray>
#include <QList>

#include <ft2build.h>
#include <memory>
#include <optional>
#include FT_FREETYPE_H
#include FT_MODULE_H

// The pieces that fonts are read by.
namespace tarnloft::freetype {

// A library of one file's own: it may be used in any thread, and what it allocates has an end.
class Library {
 public:
  Library();
  ~Library();
  Q_DISABLE_COPY_MOVE(Library)

  FT_Library get() const { return library_; }  // null if there is no memory

 private:
  static void* allocate(FT_Memory memory, long size);
  static void* reallocate(FT_Memory memory, long oldSize, long newSize, void* block);
  static void release(FT_Memory memory, void* block);

  size_t left_;
  FT_MemoryRec_ memory_;
  FT_Library library_ = nullptr;
};

struct ReleaseFace {
  void operator()(FT_Face face) const { FT_Done_Face(face); }
};
using Face = std::unique_ptr<FT_FaceRec_, ReleaseFace>;

// A whole font file: OpenType, also in a collection, a web font's wrapping or a Mac's resources, or
// PostScript Type 1. One thread at a time.
class FontFile {
 public:
  // The bytes are shared. Null if it is no font, or has more faces than any real one.
  static std::unique_ptr<FontFile> open(const QByteArray& bytes);

  // Of the first face. What is in the wrong encoding is left out.
  std::optional<FontNames> names() const;

  // The file as the toolkit is to read it: as it is, or each of its faces without the wrapping.
  QList<QByteArray> unwrapped() const;

  long faceCount() const { return first_->num_faces; }
  // Goes before this; null if it can't be read.
  Face openFace(long index) const;

 private:
  explicit FontFile(QByteArray bytes) : bytes_(std::move(bytes)) {}

  QByteArray bytes_;
  Library library_;
  Face first_;  // goes before its library
};

// The names that a face's table gives it.
std::optional<FontNames> namesOf(FT_Face face);

// The tables of a face as a file of their own; none if they are larger than a font is.
std::optional<QByteArray> plainFileOf(FT_Face face);

}  // namespace tarnloft::freetype
