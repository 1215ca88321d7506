// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>

#include <QPageSize>
#include <QPointF>

#include "platform/print/printed_document.h"

class QPagedPaintDevice;
class QPainter;

namespace rbt {

/// Paints a page on a painter whose unit is the twip and whose origin is the page's top left corner. Every
/// character stands in its own cell of the fixed metrics, whatever font gives its shape.
void PaintPage(QPainter& painter, const PrintedPage& page);

/// The sheet of a paper code; A4 for a code that `kPapers` lacks.
QPageSize PageSizeOf(std::int32_t paper_code);
/// Sets paper and orientation of a printer or PDF writer, without margins of its own.
void SetUpSheet(QPagedPaintDevice& device, const PrintedDocument& document);
/// Called before each page, counted from 1; what it throws ends the painting.
using PageNews = std::function<void(std::int64_t page)>;

/// Paints all pages on a device that is set up, their top left corner at `origin` (twips from the sheet's). A
/// device that cannot be painted on throws `file`.
void PaintDocument(QPagedPaintDevice& device, const PrintedDocument& document, const QPointF& origin = {},
                   const PageNews& news = {});

/// Writes the pages of all documents into one PDF file, each on its own document's paper, all of it or
/// nothing; throws `file`, also where there is no page. The sheet's corner is the origin. Needs no display
/// and no running application: where there is none yet, one without windows is made.
void PaintPdf(std::span<const PrintedDocument> documents, const std::filesystem::path& file,
              const PageNews& news = {});

}  // namespace rbt
