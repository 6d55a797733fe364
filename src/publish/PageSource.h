#pragma once

#include "document/BrandDocument.h"

namespace tarnloft {

// What a page is made of: a brand as it was at one moment, and its package's files. A value, so
// that a page can be written away from the main thread.
struct PageSource {
  PageSource(const BrandDocument& document)  // a document is one wherever a page is made at once
      : brand(document.brand()), package(document.files()) {}

  Brand brand;
  PackageReader package;
};

}  // namespace tarnloft
