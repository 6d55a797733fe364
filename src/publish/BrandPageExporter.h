#pragma once

#include "publish/PageSink.h"
#include "publish/PageSource.h"

namespace tarnloft {

// Turns a brand into one HTML page that needs nothing else: styles, script, pictures, videos and
// fonts travel inside it. Any thread. Writes nothing back. An asset that can't be read degrades its
// fragment and is never an error.
namespace BrandPageExporter {

// False for a brand with a gradient that has no CSS form, which no manifest made by the program
// holds. The page of such a brand can't be made: trying stops the process.
bool canPublish(const Brand& brand);

// The whole page, held in memory.
QString html(const PageSource& source);

// The whole page, piece by piece: memory stays flat whatever the assets weigh.
void writePage(const PageSource& source, PageSink& sink);

// Writes the page to a file atomically, if it can be published. A link at `path` is followed. Tells
// `progress` of items.
Result<void> writeFile(const PageSource& source, FileStore& files, const QString& path,
                       Progress& progress);

// "Acme Brand Page.html": the brand's name made fit for a file's.
QString suggestedFileName(const QString& brandName);

// The `@font-face` rules: one for each family, of its first font item that has a file.
void fontFaceBlock(const Brand& brand, const PageSource& source, PageSink& sink);

// The inside of the header's mark box: the brand's picture, else its initial.
void markHTML(const Brand& brand, const PageSource& source, PageSink& sink);

}  // namespace BrandPageExporter
}  // namespace tarnloft
