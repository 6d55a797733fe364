#pragma once

#include <cairo.h>
#include <memory>
#include <optional>
#include <string_view>

namespace tarnloft {

struct PointSize {
  double width = 0;
  double height = 0;
};

// An open vector file: a drawing, or the first page of a document.
class VectorDocument {
 public:
  virtual ~VectorDocument() = default;

  // In points, at 72 to the inch.
  virtual std::optional<PointSize> size() = 0;
  // In points from the origin. False if it fails midway.
  virtual bool draw(cairo_t* context, PointSize size) = 0;
};

// The bytes must outlive the document. Null if they can't be read. Nothing outside of them is
// looked at: references to other files don't resolve, as the document has no place of its own.
std::unique_ptr<VectorDocument> openSvg(std::string_view bytes);
std::unique_ptr<VectorDocument> openPdf(std::string_view bytes);

}  // namespace tarnloft
