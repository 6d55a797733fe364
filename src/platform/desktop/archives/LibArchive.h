#pragma once

#include "model/Error.h"

#include <archive.h>
#include <archive_entry.h>
#include <clocale>
#include <locale.h>
#include <memory>

// What ZipArchiver's two halves share.
namespace tarnloft::zip {

struct Closer {
  void operator()(archive* handle) const { ::archive_free(handle); }
  void operator()(archive_entry* entry) const { ::archive_entry_free(entry); }
};
using Archive = std::unique_ptr<archive, Closer>;
using Entry = std::unique_ptr<archive_entry, Closer>;

inline tl::unexpected<Error> failureOf(archive* handle) {
  const char* text = ::archive_error_string(handle);
  return failure(ErrorKind::io, QString::fromUtf8(text ? text : "The archive failed"));
}

// The library reads names by the locale of its thread; in here they are UTF-8.
class Utf8Names {
 public:
  Utf8Names() : utf8_(::newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {
    if (utf8_) before_ = ::uselocale(utf8_);
  }
  ~Utf8Names() {
    if (!utf8_) return;
    ::uselocale(before_);
    ::freelocale(utf8_);
  }
  Q_DISABLE_COPY_MOVE(Utf8Names)

 private:
  locale_t utf8_;
  locale_t before_ = nullptr;
};

}  // namespace tarnloft::zip
