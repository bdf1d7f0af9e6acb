// What tests of drawing look at: a bitmap's pixels as a drawing of letters, and the process's
// handles.
#pragma once

#include <gmock/gmock.h>

#include <map>
#include <string>
#include <vector>

#include "vcl/vcl.h"

namespace vcl::test {

inline const std::map<TColor, char> LettersOfColors = {
    {clWhite, '.'}, {clBlack, 'K'},  {clRed, 'R'},    {clLime, 'G'},
    {clBlue, 'B'},  {clYellow, 'Y'}, {clFuchsia, 'F'}};

/// One line per row, one letter per pixel; "?" for a colour without a letter.
inline std::vector<std::string> Letters(TBitmap& bitmap,
                                        const std::map<TColor, char>& letters = LettersOfColors) {
  std::vector<std::string> rows;
  for (int y = 0; y < bitmap.Height(); ++y) {
    std::string row;
    for (int x = 0; x < bitmap.Width(); ++x) {
      const auto found = letters.find(bitmap.Canvas()->Pixels(x, y));
      row += found == letters.end() ? '?' : found->second;
    }
    rows.push_back(row);
  }
  return rows;
}

/// Paints rows of the same letters on a bitmap.
inline void Paint(TBitmap& bitmap, const std::vector<std::string>& rows) {
  std::map<char, TColor> colors;
  for (const auto& [color, letter] : LettersOfColors) colors[letter] = color;
  bitmap.SetSize(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
  for (int y = 0; y < bitmap.Height(); ++y) {
    for (int x = 0; x < bitmap.Width(); ++x) {
      const auto row = static_cast<std::size_t>(y);
      bitmap.Canvas()->SetPixel(x, y, colors.at(rows[row][static_cast<std::size_t>(x)]));
    }
  }
}

using Rows = std::vector<std::string>;

}  // namespace vcl::test
