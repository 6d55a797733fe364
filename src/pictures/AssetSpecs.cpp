#include "pictures/AssetSpecs.h"

#include "assets/AssetMetadata.h"
#include "model/FileName.h"

namespace tarnloft {

BackgroundWork::TaskPtr AssetSpecs::read(Kind kind, const QString& path,
                                         std::function<void(const AssetSpec&)> done) {
  const auto spec = std::make_shared<AssetSpec>();
  const auto work = [this, kind, path] {
    switch (kind) {
      case Kind::Image: return AssetMetadata::imageSpec(files_, images_, path);
      case Kind::Video: return AssetMetadata::videoSpec(files_, videos_, path);
      case Kind::File: break;
    }
    return AssetSpec{
        std::nullopt, pathExtension(path).toUpper(), AssetMetadata::byteString(files_, path), {}};
  };
  return work_.start([work, spec] { *spec = work(); },
                     [done = std::move(done), spec] { done(*spec); });
}

}  // namespace tarnloft
