// A text on pages.
#include <gtest/gtest.h>

#include "demos/notes/printtext.h"
#include "vcl/printing/pagerecorder.h"

namespace notes {
namespace {

using namespace vcl;

int PagesOf(const std::string& text, int points) {
  TPageRecorder pages(StandardPage(poPortrait));
  TFont font;
  font.SetSize(points);
  pages.BeginDoc();
  PrintText(pages, "Name", text, font, {0, 0, pages.PageWidth(), pages.PageHeight()});
  pages.EndDoc();
  return pages.PageCount();
}

TEST(PrintText, FillsAsManyPagesAsItsRowsTake) {
  std::string lines;
  for (int i = 0; i < 150; ++i) lines += "A line\r\n";
  EXPECT_EQ(PagesOf("", 10), 1);
  EXPECT_EQ(PagesOf("One line", 10), 1);
  const int pages = PagesOf(lines, 10);
  EXPECT_GE(pages, 2);
  EXPECT_LE(pages, 4);
  EXPECT_GE(PagesOf(lines, 20), 2 * pages - 1) << "rows twice as high";
}

TEST(PrintText, LongLinesGoOnInTheNextRow) {
  std::string words, letters;
  for (int i = 0; i < 2000; ++i) words += "some words ";
  for (int i = 0; i < 9000; ++i) letters += "\xC3\xBC";
  EXPECT_GE(PagesOf(words, 10), 2);
  EXPECT_GE(PagesOf(letters, 10), 2) << "there is no blank to part it at";
  TPageRecorder pages(StandardPage(poPortrait));
  pages.BeginDoc();
  PrintText(pages, "Name", "wide", TFont(), {0, 0, 1, 100000});
  pages.EndDoc();
  EXPECT_EQ(pages.PageCount(), 1) << "an area without room still takes a letter in each row";
}

}  // namespace
}  // namespace notes
