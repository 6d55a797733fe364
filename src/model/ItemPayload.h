#pragma once

#include "model/CodeValue.h"
#include "model/ColorValue.h"
#include "model/FontValue.h"
#include "model/GradientValue.h"
#include "model/LogoValue.h"

#include <variant>

namespace tarnloft {

struct HeaderPayload {
  QString text;
  qint64 level = 1;

  bool operator==(const HeaderPayload&) const = default;
};

struct TextPayload {
  QString body;

  bool operator==(const TextPayload&) const = default;
};

struct ColorPayload {
  ColorValue value;

  bool operator==(const ColorPayload&) const = default;
};

struct GradientPayload {
  GradientValue value;

  bool operator==(const GradientPayload&) const = default;
};

struct ImagePayload {
  AssetRef asset;
  std::optional<QString> name;

  bool operator==(const ImagePayload&) const = default;
};

struct VideoPayload {
  AssetRef asset;
  std::optional<QString> name;

  bool operator==(const VideoPayload&) const = default;
};

struct FontPayload {
  FontValue value;

  bool operator==(const FontPayload&) const = default;
};

struct CodePayload {
  CodeValue value;

  bool operator==(const CodePayload&) const = default;
};

struct LogoPayload {
  LogoValue value;

  bool operator==(const LogoPayload&) const = default;
};

// The nine kinds of tile.
using ItemPayload = std::variant<HeaderPayload, TextPayload, ColorPayload, GradientPayload,
                                 ImagePayload, VideoPayload, FontPayload, CodePayload, LogoPayload>;

// Builds a visitor from one lambda for each kind.
template <class... Cases>
struct Overloaded : Cases... {
  using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

}  // namespace tarnloft
