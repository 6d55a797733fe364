#pragma once

#include "model/Brand.h"

#include <string_view>
#include <tuple>

namespace tarnloft {

// One key of a record. A `std::optional` member is an optional key, any other a required one.
template <class R, class T>
struct Field {
  std::string_view key;
  T R::*member;
};
template <class R, class T>
Field(std::string_view, T R::*) -> Field<R, T>;

// The one description of a record's keys, in the order in which they are written. Reading, writing
// and hashing all walk it.
template <class R>
struct RecordFields;

template <class R>
concept Record = requires {
  RecordFields<R>::fields;
};

template <Record R>
inline constexpr size_t fieldCount = std::tuple_size_v<decltype(RecordFields<R>::fields)>;

template <Record R, size_t Place>
inline constexpr auto fieldAt = std::get<Place>(RecordFields<R>::fields);

// Calls `visit(field)` for each field of the record type.
template <Record R, class Visit>
constexpr void forEachField(Visit&& visit) {
  std::apply([&](const auto&... field) { (visit(field), ...); }, RecordFields<R>::fields);
}

template <>
struct RecordFields<AssetRef> {
  static constexpr std::tuple fields{Field{"filename", &AssetRef::filename},
                                     Field{"originalName", &AssetRef::originalName}};
};

template <>
struct RecordFields<ColorValue> {
  static constexpr std::tuple fields{Field{"hex", &ColorValue::hex},
                                     Field{"name", &ColorValue::name},
                                     Field{"spot", &ColorValue::spot}};
};

template <>
struct RecordFields<GradientStop> {
  static constexpr std::tuple fields{Field{"hex", &GradientStop::hex},
                                     Field{"id", &GradientStop::id},
                                     Field{"location", &GradientStop::location}};
};

template <>
struct RecordFields<GradientValue> {
  static constexpr std::tuple fields{Field{"angle", &GradientValue::angle},
                                     Field{"name", &GradientValue::name},
                                     Field{"stops", &GradientValue::stops}};
};

template <>
struct RecordFields<FontValue> {
  static constexpr std::tuple fields{
      Field{"asset", &FontValue::asset}, Field{"family", &FontValue::family},
      Field{"name", &FontValue::name}, Field{"sampleText", &FontValue::sampleText},
      Field{"weight", &FontValue::weight}};
};

template <>
struct RecordFields<CodeValue> {
  static constexpr std::tuple fields{Field{"language", &CodeValue::language},
                                     Field{"name", &CodeValue::name},
                                     Field{"snippet", &CodeValue::snippet}};
};

template <>
struct RecordFields<LogoVariant> {
  static constexpr std::tuple fields{
      Field{"asset", &LogoVariant::asset}, Field{"background", &LogoVariant::background},
      Field{"id", &LogoVariant::id}, Field{"role", &LogoVariant::role}};
};

template <>
struct RecordFields<LogoValue> {
  static constexpr std::tuple fields{Field{"name", &LogoValue::name},
                                     Field{"variants", &LogoValue::variants}};
};

template <>
struct RecordFields<UsageNote> {
  static constexpr std::tuple fields{Field{"id", &UsageNote::id}, Field{"kind", &UsageNote::kind},
                                     Field{"text", &UsageNote::text}};
};

template <>
struct RecordFields<HeaderPayload> {
  static constexpr std::tuple fields{Field{"level", &HeaderPayload::level},
                                     Field{"text", &HeaderPayload::text}};
};

template <>
struct RecordFields<TextPayload> {
  static constexpr std::tuple fields{Field{"body", &TextPayload::body}};
};

template <>
struct RecordFields<ColorPayload> {
  static constexpr std::tuple fields{Field{"value", &ColorPayload::value}};
};

template <>
struct RecordFields<GradientPayload> {
  static constexpr std::tuple fields{Field{"value", &GradientPayload::value}};
};

template <>
struct RecordFields<ImagePayload> {
  static constexpr std::tuple fields{Field{"asset", &ImagePayload::asset},
                                     Field{"name", &ImagePayload::name}};
};

template <>
struct RecordFields<VideoPayload> {
  static constexpr std::tuple fields{Field{"asset", &VideoPayload::asset},
                                     Field{"name", &VideoPayload::name}};
};

template <>
struct RecordFields<FontPayload> {
  static constexpr std::tuple fields{Field{"value", &FontPayload::value}};
};

template <>
struct RecordFields<CodePayload> {
  static constexpr std::tuple fields{Field{"value", &CodePayload::value}};
};

template <>
struct RecordFields<LogoPayload> {
  static constexpr std::tuple fields{Field{"value", &LogoPayload::value}};
};

// The one key of a payload object, by the alternative's position in `ItemPayload`.
inline constexpr std::array<std::string_view, std::variant_size_v<ItemPayload>> payloadKeys{
    "header", "text", "color", "gradient", "image", "video", "font", "code", "logo"};

template <>
struct RecordFields<Item> {
  static constexpr std::tuple fields{
      Field{"id", &Item::id}, Field{"imageBackground", &Item::imageBackground},
      Field{"notes", &Item::notes}, Field{"payload", &Item::payload}};
};

template <>
struct RecordFields<Emblem> {
  static constexpr std::tuple fields{Field{"asset", &Emblem::asset},
                                     Field{"colorHex", &Emblem::colorHex},
                                     Field{"emoji", &Emblem::emoji}, Field{"kind", &Emblem::kind},
                                     Field{"symbolName", &Emblem::symbolName}};
};

template <>
struct RecordFields<Section> {
  static constexpr std::tuple fields{Field{"emblem", &Section::emblem}, Field{"id", &Section::id},
                                     Field{"items", &Section::items},
                                     Field{"name", &Section::name}};
};

template <>
struct RecordFields<Brand> {
  static constexpr std::tuple fields{Field{"accentHex", &Brand::accentHex},
                                     Field{"accentHexDark", &Brand::accentHexDark},
                                     Field{"createdAt", &Brand::createdAt},
                                     Field{"emblem", &Brand::emblem},
                                     Field{"id", &Brand::id},
                                     Field{"name", &Brand::name},
                                     Field{"schemaVersion", &Brand::schemaVersion},
                                     Field{"sections", &Brand::sections},
                                     Field{"updatedAt", &Brand::updatedAt}};
};

}  // namespace tarnloft
