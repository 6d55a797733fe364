#pragma once

#include "model/EnumTable.h"

namespace tarnloft {

// The backdrop behind a transparent picture.
enum class ImageBackground { white, dark, checkerboard };

template <>
struct EnumTable<ImageBackground> {
  static constexpr std::array cases{
      EnumCase<ImageBackground>{ImageBackground::white, "white"},
      EnumCase<ImageBackground>{ImageBackground::dark, "dark"},
      EnumCase<ImageBackground>{ImageBackground::checkerboard, "checkerboard"},
  };
};

}  // namespace tarnloft
