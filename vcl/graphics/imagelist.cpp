// TImageList: adding and removing pictures, drawing them, and telling of changes.
#include "vcl/graphics/imagelist.h"

#include <utility>

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/icon.h"
#include "vcl/graphics/private/keyedcopy.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

/// The common controls take 32 bits a pixel for a picture with an alpha channel. A bitmap has none,
/// so it is added with 24.
class TPlainCopy {
 public:
  explicit TPlainCopy(const TBitmap* bitmap) {
    FBitmap.Assign(bitmap);
    if (!FBitmap.Empty()) FBitmap.SetPixelFormat(pf24bit);
  }
  HBITMAP Handle() const { return FBitmap.Handle(); }

 private:
  TBitmap FBitmap;
};

bool Dark(const RGBQUAD& pixel) { return pixel.rgbRed + pixel.rgbGreen + pixel.rgbBlue < 3 * 128; }

/// Draws the dark parts of a picture of 32 bits in one colour, and nothing of the others.
void DrawInk(TCanvas* canvas, const TRect& place, const TBitmap& picture, COLORREF ink) {
  const COLORREF nothing = ~ink & 0xFFFFFF;
  TBitmap inked(place.Width(), place.Height());
  for (int y = 0; y < place.Height(); ++y) {
    const auto* from = static_cast<const RGBQUAD*>(picture.ScanLine(y));
    auto* to = static_cast<RGBQUAD*>(inked.ScanLine(y));
    for (int x = 0; x < place.Width(); ++x) {
      const COLORREF color = Dark(from[x]) ? ink : nothing;
      to[x] = {GetBValue(color), GetGValue(color), GetRValue(color), 0};
    }
  }
  CopyKeyed(canvas->Handle(), place, inked.Canvas()->Handle(),
            Rect(0, 0, place.Width(), place.Height()), nothing, nullptr);
}

}  // namespace

TImageList::TImageList(TComponent* owner) : TComponent(owner) {
  FLargerLink.OnChange = [this](TObject*) { Changed(); };
}

TImageList::TImageList(TComponent* owner, int width, int height) : TImageList(owner) {
  SetSize(width, height);
}

TImageList::~TImageList() {
  AnnounceEnd();
  for (TChangeLink* link : FLinks) link->FSender = nullptr;
  if (FHandle) ::ImageList_Destroy(FHandle);
}

const TClass& TImageList::Class() {
  static const TClass info = Describe<TImageList, TComponent>(
      "vcl::TImageList", "vcl/controls/controls.h",
      {
          Property<&TImageList::BkColor, &TImageList::SetBkColor>("BkColor").Default(clNone),
          Property<&TImageList::Height, &TImageList::SetHeight>("Height").Default(16),
          Property<&TImageList::Larger, &TImageList::SetLarger>("Larger"),
          Property<&TImageList::Width, &TImageList::SetWidth>("Width").Default(16),
          Event<&TImageList::OnChange>("OnChange"),
      });
  return info;
}

void TImageList::Assign(const TPersistent* source) {
  if (source == this) return;
  if (!source) return Clear();
  const auto* list = dynamic_cast<const TImageList*>(source);
  if (!list) return TComponent::Assign(source);
  const HIMAGELIST copy =
      CheckHandle(::ImageList_Duplicate(list->Handle()), "to copy a list of images");
  FBkColor = list->FBkColor;
  Replace(copy, list->FWidth, list->FHeight);
}

void TImageList::Replace(HIMAGELIST handle, int width, int height) {
  FWidth = width;
  FHeight = height;
  if (const HIMAGELIST old = std::exchange(FHandle, handle)) ::ImageList_Destroy(old);
  Changed();
}

HIMAGELIST TImageList::Handle() const {
  if (!FHandle) {
    constexpr int grow = 4;
    FHandle = CheckHandle(::ImageList_Create(FWidth, FHeight, ILC_COLOR32 | ILC_MASK, grow, grow),
                          "a list of images");
    if (FBkColor != clNone) ::ImageList_SetBkColor(FHandle, ColorToRGB(FBkColor));
  }
  return FHandle;
}

void TImageList::SetSize(int width, int height) {
  if (width == FWidth && height == FHeight) return;
  if (width < 1 || height < 1 || width > MostPixels || height > MostPixels) {
    throw EInvalidOperation(Concat("Images in a list cannot be ", std::to_string(width), " by ",
                                   std::to_string(height), " pixels large"));
  }
  Replace(nullptr, width, height);
}

int TImageList::Count() const { return FHandle ? ::ImageList_GetImageCount(FHandle) : 0; }

void TImageList::SetBkColor(TColor color) {
  if (color == FBkColor) return;
  FBkColor = color;
  if (FHandle) ::ImageList_SetBkColor(FHandle, color == clNone ? CLR_NONE : ColorToRGB(color));
  Changed();
}

// ---- Adding and removing ----

void TImageList::CheckStrip(const TBitmap* image) const {
  if (image && image->Width() >= FWidth && image->Height() >= FHeight) return;
  throw EInvalidOperation(Concat("A bitmap of ", std::to_string(image ? image->Width() : 0), " by ",
                                 std::to_string(image ? image->Height() : 0),
                                 " pixels holds no image of ", std::to_string(FWidth), " by ",
                                 std::to_string(FHeight)));
}

int TImageList::Added(int index) {
  if (index < 0) RaiseOutOfResources("to add an image to a list");
  Changed();
  return index;
}

int TImageList::Add(TBitmap* image, TBitmap* mask) {
  CheckStrip(image);
  const TPlainCopy pixels(image);
  // Given no mask, the common controls keep what an earlier image has left in its place.
  TBitmap holes;
  holes.Canvas()->Brush()->SetColor(clBlack);
  if (mask) holes.Assign(mask);
  if (holes.Empty()) holes.SetSize(image->Width(), image->Height());
  holes.SetPixelFormat(pf1bit);
  return Added(::ImageList_Add(Handle(), pixels.Handle(), holes.Handle()));
}

int TImageList::AddMasked(TBitmap* image, TColor maskColor) {
  CheckStrip(image);
  const TPlainCopy pixels(image);
  return Added(::ImageList_AddMasked(Handle(), pixels.Handle(), ColorToRGB(maskColor)));
}

int TImageList::AddIcon(TIcon* icon) {
  if (!icon || icon->Empty()) throw EInvalidOperation("There is no icon to add to the list");
  return Added(::ImageList_ReplaceIcon(Handle(), -1, icon->Handle()));
}

void TImageList::CheckIndex(int index) const {
  if (index >= 0 && index < Count()) return;
  throw EArgumentOutOfRangeException(Concat("There is no image ", std::to_string(index),
                                            " in a list of ", std::to_string(Count())));
}

void TImageList::Delete(int index) {
  CheckIndex(index);
  ::ImageList_Remove(Handle(), index);
  Changed();
}

void TImageList::ReplaceIcon(int index, const TIcon& icon) {
  if (::ImageList_ReplaceIcon(Handle(), index, icon.Handle()) != index) {
    RaiseOutOfResources("to put an image into a list");
  }
}

void TImageList::Move(int from, int to) {
  CheckIndex(from);
  CheckIndex(to);
  if (from == to) return;
  // By icons, which keep see-through parts wherever they come to stand.
  TIcon moved;
  GetIcon(from, &moved);
  const int step = from < to ? 1 : -1;
  for (int i = from; i != to; i += step) {
    TIcon next;
    GetIcon(i + step, &next);
    ReplaceIcon(i, next);
  }
  ReplaceIcon(to, moved);
  Changed();
}

void TImageList::Clear() {
  if (FHandle) Replace(nullptr, FWidth, FHeight);
}

void TImageList::Changed() {
  FScaled.clear();
  TWatch watch(this);
  for (std::size_t i = 0; !watch.Gone() && i < FLinks.size(); ++i) FLinks[i]->OnChange(this);
  if (!watch.Gone()) OnChange(this);
}

void TImageList::RegisterChanges(TChangeLink* link) {
  if (link->FSender) link->FSender->UnRegisterChanges(link);
  link->FSender = this;
  FLinks.push_back(link);
}

void TImageList::UnRegisterChanges(TChangeLink* link) {
  if (std::erase(FLinks, link) != 0) link->FSender = nullptr;
}

TChangeLink::~TChangeLink() {
  if (FSender) FSender->UnRegisterChanges(this);
}

// ---- Drawing ----

void TImageList::Draw(TCanvas* canvas, int x, int y, int index, bool enabled) {
  if (index < 0 || index >= Count()) return;
  if (!enabled) return DrawDisabled(canvas, x, y, index);
  ::ImageList_Draw(Handle(), index, canvas->Handle(), x, y, ILD_NORMAL);
}

/// Embossed: the picture's dark parts in shadow, and in highlight one pixel down and right.
void TImageList::DrawDisabled(TCanvas* canvas, int x, int y, int index) {
  TBitmap picture;
  GetBitmap(index, &picture, clWhite);
  picture.SetPixelFormat(pf32bit);
  const TRect place = Bounds(x, y, FWidth, FHeight);
  TRect lower = place;
  lower.Offset(1, 1);
  DrawInk(canvas, lower, picture, ColorToRGB(clBtnHighlight));
  DrawInk(canvas, place, picture, ColorToRGB(clBtnShadow));
}

void TImageList::GetBitmap(int index, TBitmap* image, TColor background) const {
  TBitmap drawn;
  drawn.Canvas()->Brush()->SetColor(background);
  drawn.SetSize(FWidth, FHeight);
  if (index >= 0 && index < Count()) {
    ::ImageList_Draw(Handle(), index, drawn.Canvas()->Handle(), 0, 0, ILD_TRANSPARENT);
  }
  image->Assign(&drawn);
}

void TImageList::GetIcon(int index, TIcon* icon) const {
  icon->SetHandle(index >= 0 && index < Count()
                      ? ::ImageList_GetIcon(Handle(), index, ILD_TRANSPARENT)
                      : nullptr);
}

}  // namespace vcl
