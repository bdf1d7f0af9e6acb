// TIcon: its images, its handle in a wanted size, files and drawing.
#include "vcl/graphics/icon.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <optional>
#include <span>
#include <utility>

#include "vcl/graphics/bitmap.h"
#include "vcl/graphics/canvas.h"
#include "vcl/graphics/private/iconfile.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {
namespace {

TSize SystemSize() { return {::GetSystemMetrics(SM_CXICON), ::GetSystemMetrics(SM_CYICON)}; }

/// The bitmaps of an icon's handle, which the system makes anew for who asks.
struct TIconParts {
  explicit TIconParts(HICON icon) {
    ICONINFO info;
    if (!::GetIconInfo(icon, &info)) RaiseOutOfResources("to describe an icon");
    Mask.Reset(info.hbmMask);
    Color.Reset(info.hbmColor);
  }
  TSize Size() const {
    BITMAP bitmap{};
    ::GetObjectW(Color ? Color.Get() : Mask.Get(), sizeof bitmap, &bitmap);
    const int height = static_cast<int>(bitmap.bmHeight);
    // Without a bitmap of colours, the mask holds two pictures one above the other.
    return {static_cast<int>(bitmap.bmWidth), Color ? height : height / 2};
  }
  TOwnedBitmap Mask;
  TOwnedBitmap Color;
};

}  // namespace

TIcon::~TIcon() = default;

const TClass& TIcon::Class() {
  static const TClass info = Describe<TIcon, TGraphic>("vcl::TIcon", "vcl/graphics/graphics.h", {});
  return info;
}

void TIcon::Assign(const TPersistent* source) {
  if (source == this) return;
  if (!source) return SetHandle(nullptr);
  const auto* icon = dynamic_cast<const TIcon*>(source);
  if (!icon) return TGraphic::Assign(source);
  TOwnedIcon copy;
  if (icon->FFile.empty() && icon->FHandle) {
    copy.Reset(CheckHandle(::CopyIcon(icon->FHandle.Get()), "to copy an icon"));
  }
  FFile = icon->FFile;
  FWanted = icon->FWanted;
  FHandle = std::move(copy);
  Changed();
}

TSize TIcon::Size() const {
  if (Empty()) return {};
  return FHandle || FFile.empty() ? TIconParts(Handle()).Size()
                                  : BestIconImage(FFile, Wanted()).Size;
}

TSize TIcon::Wanted() const { return FWanted == TSize() ? SystemSize() : FWanted; }

void TIcon::SetSize(int width, int height) {
  if (FWanted == TSize{width, height}) return;
  FWanted = {width, height};
  if (FFile.empty()) return;
  FHandle.Reset();
  Changed();
}

HICON TIcon::Handle() const {
  if (!FHandle && !FFile.empty()) FHandle = MakeIcon(FFile, Wanted());
  return FHandle.Get();
}

void TIcon::SetHandle(HICON icon) {
  if (icon && icon == FHandle.Get()) return;
  FFile.clear();
  FHandle.Reset(icon);
  Changed();
}

HICON TIcon::ReleaseHandle() {
  Handle();
  const HICON icon = FHandle.Release();
  SetHandle(nullptr);
  return icon;
}

void TIcon::Draw(TCanvas* canvas, const TRect& rect) {
  if (Empty()) return;
  ::DrawIconEx(canvas->Handle(), rect.Left, rect.Top, Handle(), rect.Width(), rect.Height(), 0,
               nullptr, DI_NORMAL);
}

void TIcon::LoadFromStream(TStream& stream) {
  std::vector<unsigned char> file = ReadIconFile(stream);
  // The image that will be shown is made now, so that a damaged one is refused now.
  TOwnedIcon handle = MakeIcon(file, Wanted());
  FFile = std::move(file);
  FHandle = std::move(handle);
  Changed();
}

void TIcon::SaveToStream(TStream& stream) const {
  if (Empty()) return;
  if (!FFile.empty()) {
    stream.WriteBuffer(FFile.data(), static_cast<std::int64_t>(FFile.size()));
    return;
  }
  TIconParts parts(FHandle.Get());
  WriteIconFile(parts.Color.Release(), parts.Mask.Release(), stream);
}

void TIcon::LoadFromResourceName(HINSTANCE instance, const std::string& name) {
  const TSize size = Wanted();
  // Here null would be the system's own module instead of the program.
  if (!instance) instance = ::GetModuleHandleW(nullptr);
  const HANDLE icon =
      ::LoadImageW(instance, ToUtf16(name).c_str(), IMAGE_ICON, size.cx, size.cy, 0);
  if (!icon) throw EResNotFound(Concat("There is no icon \"", name, "\" in the module"));
  SetHandle(static_cast<HICON>(icon));
}

}  // namespace vcl
