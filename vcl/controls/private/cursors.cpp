// The mouse pointers: which are the system's, and the drawings of the others.
#include "vcl/controls/private/cursors.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

// The names are numbers cast to pointers, which no constant expression may hold.
const struct {
  TCursor Cursor;
  LPCSTR Name;
} SystemCursors[] = {
    {crArrow, IDC_ARROW},          {crCross, IDC_CROSS},       {crIBeam, IDC_IBEAM},
    {crSize, IDC_SIZEALL},         {crSizeNESW, IDC_SIZENESW}, {crSizeNS, IDC_SIZENS},
    {crSizeNWSE, IDC_SIZENWSE},    {crSizeWE, IDC_SIZEWE},     {crUpArrow, IDC_UPARROW},
    {crHourGlass, IDC_WAIT},       {crNoDrop, IDC_NO},         {crNo, IDC_NO},
    {crAppStart, IDC_APPSTARTING}, {crHelp, IDC_HELP},         {crHandPoint, IDC_HAND},
    {crDefault, IDC_ARROW},
};

// Drawings: '#' is black, '.' white, a blank shows what is behind. All pointers are 32 by 32.
constexpr int Side = 32;

using TRows = std::array<std::string_view, 22>;

struct TDrawing {
  TCursor Cursor;
  int HotX;
  int HotY;
  TRows Rows;
};

// clang-format off
constexpr std::array<std::string_view, 13> Arrow = {
    "#           ",
    "##          ",
    "#.#         ",
    "#..#        ",
    "#...#       ",
    "#....#      ",
    "#.....#     ",
    "#......#    ",
    "#.......#   ",
    "#.....####  ",
    "#..#..#     ",
    "#.# #..#    ",
    "##  #..#    ",
};

/// The arrow, and what is dragged below it.
constexpr TRows WithArrow(const std::array<std::string_view, 9>& below) {
  TRows rows;
  std::copy(below.begin(), below.end(), std::copy(Arrow.begin(), Arrow.end(), rows.begin()));
  return rows;
}

constexpr TDrawing Drawings[] = {
    {crDrag, 0, 0,
     WithArrow({
         "#    #..#   ",
         "     #..#######",
         "      ##.......#",
         "       #.......#",
         "       #.......#",
         "       #.......#",
         "       #.......#",
         "       #.......#",
         "       #########",
     })},
    {crMultiDrag, 0, 0,
     WithArrow({
         "#    #..####### ",
         "     #..#.....# ",
         "      ##......# ",
         "       #......###",
         "       #......#.#",
         "       #......#.#",
         "       ########.#",
         "         #......#",
         "         ########",
     })},
    {crHSplit, 8, 6,
     {
         "      # #      ",
         "      # #      ",
         "      # #      ",
         "   #  # #  #   ",
         "  ##  # #  ##  ",
         " #.#### ####.# ",
         "#.....# #.....#",
         " #.#### ####.# ",
         "  ##  # #  ##  ",
         "   #  # #  #   ",
         "      # #      ",
         "      # #      ",
         "      # #      ",
     }},
    {crVSplit, 6, 7,
     {
         "      #      ",
         "     #.#     ",
         "    ##.##    ",
         "   #  .  #   ",
         "     #.#     ",
         "     #.#     ",
         "#############",
         "             ",
         "#############",
         "     #.#     ",
         "     #.#     ",
         "   #  .  #   ",
         "    ##.##    ",
         "     #.#     ",
         "      #      ",
     }},
};
// clang-format on

using TMask = std::array<BYTE, Side * Side / 8>;

// A drawing as the system's two masks: (1, 0) shows the screen, (0, 0) is black, (0, 1) white.
HCURSOR Make(const TDrawing& drawing) {
  TMask andMask;
  TMask xorMask{};
  andMask.fill(0xFF);
  for (std::size_t y = 0; y < drawing.Rows.size(); ++y) {
    for (std::size_t x = 0; x < drawing.Rows[y].size(); ++x) {
      const char pixel = drawing.Rows[y][x];
      const std::size_t place = (y * Side + x) / 8;
      const auto bit = static_cast<BYTE>(0x80 >> (x % 8));
      if (pixel != ' ') andMask[place] = static_cast<BYTE>(andMask[place] & ~bit);
      if (pixel == '.') xorMask[place] = static_cast<BYTE>(xorMask[place] | bit);
    }
  }
  return ::CreateCursor(::GetModuleHandleW(nullptr), drawing.HotX, drawing.HotY, Side, Side,
                        andMask.data(), xorMask.data());
}

}  // namespace

HCURSOR SystemCursor(TCursor cursor) {
  for (const auto& [number, name] : SystemCursors) {
    if (number == cursor) return ::LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(name));
  }
  return nullptr;
}

HCURSOR DrawnCursor(TCursor cursor) {
  for (const TDrawing& drawing : Drawings) {
    if (drawing.Cursor == cursor) return Make(drawing);
  }
  return nullptr;
}

}  // namespace vcl
