// Printing a text, on paper or for the preview.
#pragma once

#include <string>

#include "vcl/graphics/font.h"
#include "vcl/printing/printdocument.h"

namespace notes {

/// Draws a text on as many pages as it takes, its lines wrapped between words, in the font's points
/// and inside the area of each page; the name and the page's number stand above.
void PrintText(vcl::TPrintDocument& document, const std::string& name, const std::string& text,
               const vcl::TFont& font, const vcl::TRect& area);

}  // namespace notes
