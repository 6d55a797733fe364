#pragma once

#include "testing/TestServices.h"

#include <QBuffer>
#include <QImage>
#include <QRandomGenerator>
#include <QtEndian>

#include <array>

namespace tarnloft {

// The chart that the picture fixtures hold: 4 by 3 cells of 16 pixels.
namespace Chart {

constexpr int cell = 16, columns = 4, rows = 3;
constexpr QSize size(columns* cell, rows* cell);
constexpr std::array colors{qRgb(255, 0, 0),     qRgb(0, 255, 0),   qRgb(0, 0, 255),
                            qRgb(255, 255, 0),   qRgb(0, 255, 255), qRgb(255, 0, 255),
                            qRgb(255, 255, 255), qRgb(0, 0, 0),     qRgb(128, 128, 128),
                            qRgb(200, 120, 60),  qRgb(30, 90, 160), qRgb(240, 200, 180)};

inline QImage image(int scale = 1) {
  QImage chart(columns, rows, QImage::Format_RGB32);
  for (int i = 0; i < int(colors.size()); ++i) {
    chart.setPixel(i % columns, i / columns, colors[size_t(i)]);
  }
  return chart.scaled(size * scale);
}

}  // namespace Chart

inline QString pictureFixture(const char* name) {
  return QStringLiteral(PICTURE_FIXTURES "/") + QLatin1String(name);
}

// The largest difference of any component between the pictures as they look on a grey ground, at
// the middles of a grid of cells. 255 if their sizes differ.
inline int differenceAtCells(const QImage& a, const QImage& b) {
  if (a.size() != b.size()) return 255;
  const auto component = [](QRgb pixel, int shift) {  // premultiplied
    return int(pixel >> shift & 0xFF) + (255 - qAlpha(pixel)) / 2;
  };
  const QImage left = a.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  const QImage right = b.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  const auto raw = [](const QImage& image, int x, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
  };
  int worst = 0;
  for (int row = 0; row < Chart::rows; ++row) {
    for (int column = 0; column < Chart::columns; ++column) {
      const int x = a.width() * (2 * column + 1) / (2 * Chart::columns);
      const int y = a.height() * (2 * row + 1) / (2 * Chart::rows);
      for (const int shift : {0, 8, 16}) {
        worst = qMax(worst,
                     qAbs(component(raw(left, x, y), shift) - component(raw(right, x, y), shift)));
      }
    }
  }
  return worst;
}

// A JPEG with the tag that tells how to turn it.
inline QByteArray turnedJpeg(const QImage& image, char orientation) {
  QByteArray jpeg;
  QBuffer buffer(&jpeg);
  image.save(&buffer, "jpeg", 100);
  const QByteArray tag(
      "\xFF\xE1\x00\x22"
      "Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0",
      28);
  return jpeg.insert(2, tag + orientation + QByteArray(7, '\0'));
}

// A PNG whose header tells any size, and whose pixels are so many zero bytes.
inline QByteArray pngOf(quint32 width, quint32 height, quint8 depth, quint8 colorType,
                        quint8 interlace, qsizetype zeroBytes) {
  const auto crc = [](const QByteArray& bytes) {
    quint32 sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
      sum ^= quint8(byte);
      for (int bit = 0; bit < 8; ++bit) sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    return ~sum;
  };
  const auto number = [](quint32 value) {
    const quint32 big = qToBigEndian(value);
    return QByteArray(reinterpret_cast<const char*>(&big), sizeof big);
  };
  const auto chunk = [&](const QByteArray& type, const QByteArray& content) {
    return number(quint32(content.size())) + type + content + number(crc(type + content));
  };
  QByteArray header = number(width) + number(height);
  for (const quint8 byte : {depth, colorType, quint8(0), quint8(0), interlace})
    header += char(byte);
  const QByteArray packed = qCompress(QByteArray(zeroBytes, '\0')).sliced(4);
  return "\x89PNG\r\n\x1A\n" + chunk("IHDR", header) + chunk("IDAT", packed) + chunk("IEND", "");
}

}  // namespace tarnloft
