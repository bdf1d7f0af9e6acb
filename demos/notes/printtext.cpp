// Printing a text: its rows, and the pages that they fill.
#include "demos/notes/printtext.h"

#include <algorithm>

#include "vcl/rtl/text.h"

namespace notes {

using namespace vcl;

namespace {

constexpr const char* TabBlanks = "        ";

/// The end of what fits into the width, behind a blank where there is one; never nothing.
std::size_t EndOfRow(TCanvas& canvas, const std::string& line, std::size_t begin, int width) {
  const auto fits = [&](std::size_t end) {
    return canvas.TextWidth(line.substr(begin, end - begin)) <= width;
  };
  if (fits(line.size())) return line.size();
  // The last place that fits, by halving; continuing bytes of UTF-8 are no places.
  std::size_t good = begin;
  std::size_t bad = line.size();
  while (bad - good > 1) {
    const std::size_t middle = good + (bad - good) / 2;
    (fits(middle) ? good : bad) = middle;
  }
  while (good > begin && (line[good] & 0xC0) == 0x80) --good;
  const std::size_t blank = line.rfind(' ', good);
  if (blank != std::string::npos && blank > begin) return blank + 1;
  if (good > begin) return good;
  good = begin + 1;
  while (good < line.size() && (line[good] & 0xC0) == 0x80) ++good;
  return good;
}

class TTextPrinter {
 public:
  TTextPrinter(TPrintDocument& document, const std::string& name, const TFont& font,
               const TRect& area)
      : FDocument(document), FCanvas(*document.Canvas()), FName(name), FArea(area) {
    FCanvas.Font()->Assign(&font);
    FCanvas.Font()->SetColor(clBlack);
    FCanvas.Brush()->SetStyle(bsClear);
    FHeight = std::max(FCanvas.TextHeight("X"), 1);
    BeginPage();
  }

  void Line(const std::string& line) {
    std::size_t begin = 0;
    do {
      const std::size_t end = EndOfRow(FCanvas, line, begin, FArea.Width());
      Row(line.substr(begin, end - begin));
      begin = end;
    } while (begin < line.size());
  }

 private:
  void BeginPage() {
    const std::string number = std::to_string(FDocument.PageNumber());
    FCanvas.TextOut(FArea.Left, FArea.Top, FName);
    FCanvas.TextOut(FArea.Right - FCanvas.TextWidth(number), FArea.Top, number);
    FTop = FArea.Top + 2 * FHeight;
  }
  void Row(const std::string& text) {
    if (FTop + FHeight > FArea.Bottom && FTop > FArea.Top + 2 * FHeight) {
      FDocument.NewPage();
      BeginPage();
    }
    FCanvas.TextOut(FArea.Left, FTop, text);
    FTop += FHeight;
  }

  TPrintDocument& FDocument;
  TCanvas& FCanvas;
  const std::string& FName;
  TRect FArea;
  int FHeight = 1;
  int FTop = 0;
};

}  // namespace

void PrintText(TPrintDocument& document, const std::string& name, const std::string& text,
               const TFont& font, const TRect& area) {
  TTextPrinter printer(document, name, font, area);
  std::string line;
  for (const char c : text) {
    if (c == '\n') {
      printer.Line(line);
      line.clear();
    } else if (c == '\t') {
      line += TabBlanks;
    } else if (c != '\r') {
      line += c;
    }
  }
  if (!line.empty()) printer.Line(line);
}

}  // namespace notes
