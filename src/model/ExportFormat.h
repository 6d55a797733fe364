#pragma once

#include "model/EnumTable.h"

namespace tarnloft {

// A form in which pictures leave a brand.
enum class ExportFormat { png, jpeg, heic, tiff };

template <>
struct EnumTable<ExportFormat> {
  static constexpr std::array cases{EnumCase<ExportFormat>{ExportFormat::png, "png"},
                                    EnumCase<ExportFormat>{ExportFormat::jpeg, "jpeg"},
                                    EnumCase<ExportFormat>{ExportFormat::heic, "heic"},
                                    EnumCase<ExportFormat>{ExportFormat::tiff, "tiff"}};
};

}  // namespace tarnloft
