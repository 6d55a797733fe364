#pragma once

#include <QByteArrayView>

// The parts of a brand page that are the same in every page.
namespace tarnloft::BrandPageText {

extern const QByteArrayView head;        // up to the title's text
extern const QByteArrayView styleSheet;  // from behind the accent colour on
extern const QByteArrayView bodyStart;   // from behind the font rules up to the mark
extern const QByteArrayView tail;        // from behind the footer on

}  // namespace tarnloft::BrandPageText
