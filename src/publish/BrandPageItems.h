#pragma once

#include "publish/PageSink.h"
#include "publish/PageSource.h"

namespace tarnloft::BrandPageExporter {

// The fragments of a section and of each kind of item; each goes to the sink without a line feed
// behind it. Notes show on colours, images, videos and logo sets alone.

void sectionHTML(const Section& section, const PageSource& source, PageSink& sink);
void itemHTML(const Item& item, const PageSource& source, PageSink& sink);
void colorHTML(const ColorValue& color, const QList<UsageNote>& notes, PageSink& sink);
void gradientHTML(GradientValue gradient, PageSink& sink);
void fontHTML(const FontValue& font, const PageSource& source, PageSink& sink);
void logoHTML(const LogoValue& logo, const PageSource& source, const QList<UsageNote>& notes,
              PageSink& sink);

// Empty for no notes.
QByteArray notesHTML(const QList<UsageNote>& notes);

}  // namespace tarnloft::BrandPageExporter
