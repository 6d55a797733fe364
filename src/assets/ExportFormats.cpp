#include "assets/ExportFormats.h"

namespace tarnloft {
namespace {

enum class Loss { none, byQuality };

struct FormatRow {
  ExportFormat format;
  const char* fileExtension;
  const char* label;
  const char* mimeType;
  Loss loss;
};

constexpr std::array rows{
    FormatRow{ExportFormat::png, "png", "PNG", "image/png", Loss::none},
    FormatRow{ExportFormat::jpeg, "jpg", "JPEG", "image/jpeg", Loss::byQuality},
    FormatRow{ExportFormat::heic, "heic", "HEIC", "image/heic", Loss::byQuality},
    FormatRow{ExportFormat::tiff, "tiff", "TIFF", "image/tiff", Loss::none},
};

const FormatRow& rowOf(ExportFormat format) {
  for (const FormatRow& row : rows) {
    if (row.format == format) return row;
  }
  Q_UNREACHABLE();
}

}  // namespace

QString fileExtension(ExportFormat format) {
  return QString::fromLatin1(rowOf(format).fileExtension);
}

QString label(ExportFormat format) { return QString::fromLatin1(rowOf(format).label); }

QString mimeType(ExportFormat format) { return QString::fromLatin1(rowOf(format).mimeType); }

bool isLossy(ExportFormat format) { return rowOf(format).loss == Loss::byQuality; }

}  // namespace tarnloft
