#include "platform/desktop/images/CutFiles.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace tarnloft {
namespace {

// Numbers of a file in its own byte order. One that lies beyond its end reads as 0.
class Numbers {
 public:
  Numbers(const ImageFile& file, bool bigEndian) : file_(file), bigEndian_(bigEndian) {}

  quint16 at16(qint64 place) const { return at<quint16>(place); }
  quint32 at32(qint64 place) const { return at<quint32>(place); }
  bool reaches(qint64 end) const { return end <= size(); }
  qint64 size() const { return file_.size(); }

 private:
  template <class Number>
  Number at(qint64 place) const {
    const QByteArray bytes = file_.read(place, sizeof(Number));
    if (bytes.size() < qsizetype(sizeof(Number))) return 0;
    return bigEndian_ ? qFromBigEndian<Number>(bytes.constData())
                      : qFromLittleEndian<Number>(bytes.constData());
  }

  const ImageFile& file_;
  const bool bigEndian_;
};

bool isCutBmp(const Numbers& file) {
  constexpr quint32 oldHeader = 12, unpacked = 0, unpackedWithMasks = 3;
  const qint64 pixels = file.at32(10);
  const bool isOld = file.at32(14) == oldHeader;
  const qint64 width = isOld ? file.at16(18) : file.at32(18);
  const qint64 height = isOld ? file.at16(20) : qAbs(qint64(qint32(file.at32(22))));
  const qint64 bitsEach = file.at16(isOld ? 24 : 28);
  const quint32 packing = isOld ? unpacked : file.at32(30);
  if (packing != unpacked && packing != unpackedWithMasks)
    return !file.reaches(pixels + file.at32(34));
  const qint64 row = (width * bitsEach + 31) / 32 * 4;
  return !file.reaches(pixels) || (row > 0 && height > (file.size() - pixels) / row);
}

// The fields without which a picture is read as another one.
bool isNeeded(quint16 tag) {
  constexpr std::array needed{258, 273, 279, 320, 324, 325, 34675};
  return std::find(needed.begin(), needed.end(), tag) != needed.end();
}

qint64 bytesOf(quint16 fieldType) {
  constexpr std::array<qint64, 13> sizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
  return fieldType < sizes.size() ? sizes[fieldType] : 0;
}

bool isCutTiff(const Numbers& file) {
  if (file.at16(2) != 42) return false;  // the large form
  constexpr qint64 entrySize = 12;
  const qint64 directory = file.at32(4), entries = file.at16(directory);
  if (!file.reaches(directory + 2 + entries * entrySize)) return true;
  for (qint64 entry = directory + 2; entry < directory + 2 + entries * entrySize;
       entry += entrySize) {
    const qint64 size = bytesOf(file.at16(entry + 2)) * file.at32(entry + 4);
    const bool isElsewhere = size > 4;
    if (isElsewhere && isNeeded(file.at16(entry)) && !file.reaches(file.at32(entry + 8) + size)) {
      return true;
    }
  }
  return false;
}

}  // namespace

bool isCut(const ImageFile& file) {
  if (file.kind() == ImageKind::bmp) return isCutBmp(Numbers(file, false));
  if (file.kind() != ImageKind::tiff) return false;
  return isCutTiff(Numbers(file, file.read(0, 1) == "M"));
}

}  // namespace tarnloft
