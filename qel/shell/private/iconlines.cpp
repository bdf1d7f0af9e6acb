// TQELIconLines: the icons of a file, in the size of the lines.
#include "qel/shell/private/iconlines.h"

#include <algorithm>

#include "qel/shell/private/hourglass.h"
#include "qel/shell/private/iconfile.h"

namespace qel {
namespace {

constexpr int Margin = 2;
constexpr int MostItemHeight = 255;
constexpr int MaxPixels = 64'000'000;

}  // namespace

TQELIconLines::TQELIconLines(vcl::TCustomListControl& list) : TImageLines(list) {}

void TQELIconLines::SetFilename(const std::string& fileName) {
  if (fileName == FFilename) return;
  FFilename = fileName;
  if (!List().Loading()) FIndex = 0;
  Fill();
}

void TQELIconLines::SetIconSize(int size) {
  constexpr int most = 256;
  if (size < 1 || size > most || size == FIconSize) return;
  FIconSize = size;
  Fill();
}

int TQELIconLines::SizeInPixels() const {
  return std::clamp(List().ScaledPixels(FIconSize), 1,
                    MostItemHeight - 2 * List().ScaledPixels(Margin));
}

void TQELIconLines::Fill() {
  if (List().Loading()) return;
  const int size = SizeInPixels();
  List().SetItemHeight(size + 2 * List().ScaledPixels(Margin));
  TImages images(::ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, 0, 64));
  std::vector<TImageLine> lines;
  if (!FFilename.empty()) {
    const THourGlass hourglass;
    ReadIcons(FFilename, size, MaxPixels / (size * size), [&](const vcl::TOwnedIcon& icon) {
      const int image = ::ImageList_ReplaceIcon(images.Get(), -1, icon.Get());
      if (image >= 0) lines.push_back({std::to_string(lines.size()), image});
    });
  }
  FImages = std::move(images);
  SetLines(lines);
  Select();
}

void TQELIconLines::Select() {
  const int count = List().Items()->Count();
  List().SetItemIndex(FIndex < count ? FIndex : -1);
}

void TQELIconLines::SetIndex(int index) {
  if (index < -1) return;
  FIndex = index;
  if (!List().Loading()) Select();
}

const vcl::TIcon& TQELIconLines::Icon() {
  FIcon.SetHandle(nullptr);
  const int index = List().ItemIndex();
  if (index >= 0) FIcon.SetHandle(::ImageList_GetIcon(FImages.Get(), index, ILD_TRANSPARENT));
  return FIcon;
}

}  // namespace qel
