// TImageLines: filling and drawing.
#include "qel/shell/private/imagelines.h"

#include <algorithm>

#include "qel/shell/private/folders.h"
#include "vcl/controls/scaling.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/scope.h"

namespace qel {

namespace {

constexpr int Levels = 256;  // A line's mark is its image times this, and its level.
constexpr int Margin = 2;
constexpr int Indentation = 10;

}  // namespace

int TImageLines::PixelsPerInch() const { return FList.ScaledPixels(vcl::DefaultPixelsPerInch); }

HIMAGELIST TImageLines::Images() const { return folders::SystemImages(PixelsPerInch()); }

void TImageLines::SetLines(const std::vector<TImageLine>& lines) {
  const vcl::TUpdating updating(*FList.Items(), &FList);
  FList.Items()->Clear();
  for (const TImageLine& line : lines) {
    const int level = std::clamp(line.Level, 0, Levels - 1);
    SetMark(FList, FList.Items()->Add(line.Text), line.Image * Levels + level);
  }
}

void TImageLines::Draw(vcl::TCustomListControl& list, int index, const vcl::TRect& rect,
                       vcl::TOwnerDrawState state) {
  const int mark = Mark(list, index);
  const bool field = state.Has(vcl::odComboBoxEdit);
  const int level = field ? 0 : mark % Levels;
  const int left = list.ScaledPixels(Margin + level * Indentation);
  int width = 0, height = 0;
  const HIMAGELIST images = Images();
  ::ImageList_GetIconSize(images, &width, &height);
  const int textLeft = left + width + list.ScaledPixels(2 * Margin);
  DrawLineText(list, rect, textLeft, list.Items()->Strings(index));
  const UINT style = list.Enabled() ? ILD_TRANSPARENT : ILD_TRANSPARENT | ILD_BLEND50;
  ::ImageList_DrawEx(images, mark / Levels, list.Canvas()->Handle(), rect.Left + left,
                     rect.Top + (rect.Height() - height) / 2, 0, 0, CLR_NONE,
                     ::GetSysColor(COLOR_WINDOW), style);
}

}  // namespace qel
