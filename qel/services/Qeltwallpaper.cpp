// TQELWallPaper: its table, and the system's settings of the desktop's picture.
#include "qel/services/Qeltwallpaper.h"

#include <utility>

#include "qel/services/private/systemundo.h"
#include "vcl/graphics/picture.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/registry.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

/// How the desktop shows its picture, as the user's registry has it.
struct TLook {
  std::string File;
  std::string Style = "0";
  std::string Tile = "0";
};

constexpr const char* DesktopKey = "\\Control Panel\\Desktop";

std::string CurrentFile() {
  wchar_t name[MAX_PATH] = L"";
  ::SystemParametersInfoW(SPI_GETDESKWALLPAPER, MAX_PATH, name, 0);
  return vcl::ToUtf8(name);
}

TLook CurrentLook() {
  TLook look{CurrentFile()};
  vcl::TRegistry registry(KEY_QUERY_VALUE);
  if (!registry.OpenKey(DesktopKey, false)) return look;
  if (registry.ValueExists("WallpaperStyle")) look.Style = registry.ReadString("WallpaperStyle");
  if (registry.ValueExists("TileWallpaper")) look.Tile = registry.ReadString("TileWallpaper");
  return look;
}

void WriteLook(const TLook& look) {
  vcl::TRegistry registry(KEY_SET_VALUE);
  if (!registry.OpenKey(DesktopKey, true)) {
    throw vcl::ERegistryException(
        vcl::Concat("The registry's key ", DesktopKey, " is not to be changed"));
  }
  registry.WriteString("WallpaperStyle", look.Style);
  registry.WriteString("TileWallpaper", look.Tile);
}

/// Shows the picture; the user's profile has it, too, where it is for good. The former style is
/// back when the system refuses.
void Show(const TLook& look, bool forGood) {
  const TLook former = CurrentLook();
  WriteLook(look);
  std::wstring file = vcl::ToUtf16(look.File);
  const UINT flags = SPIF_SENDCHANGE | (forGood ? SPIF_UPDATEINIFILE : 0U);
  if (::SystemParametersInfoW(SPI_SETDESKWALLPAPER, 0, file.data(), flags)) return;
  const auto error = static_cast<int>(::GetLastError());
  WriteLook(former);
  throw EQELSystemError(vcl::Concat("The desktop cannot show '", look.File, "'"), error);
}

}  // namespace

/// What was there before the first Execute. A preview takes itself back.
struct TQELWallPaper::TFormer {
  TFormer()
      : Look(CurrentLook()), Undo([look = Look] {
          try {
            Show(look, true);
          } catch (const vcl::Exception&) {
            return;  // There is nobody left to be told.
          }
        }) {}
  TLook Look;
  TSystemUndo Undo;
};

const vcl::TClass& TQELWallPaper::Class() {
  using T = TQELWallPaper;
  using namespace vcl;
  static const TClass info = Describe<T, TQELActionComponent>(
      "qel::TQELWallPaper", "qel/services/Qeltwallpaper.h",
      {
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::Preview, &T::SetPreview>("Preview").Default(false),
          Property<&T::Style, &T::SetStyle>("Style").Default(wpCenter),
      });
  return info;
}

TQELWallPaper::TQELWallPaper(vcl::TComponent* owner) : TQELActionComponent(owner) {}

TQELWallPaper::~TQELWallPaper() {
  AnnounceEnd();
  if (FFormer && !FPreview) FFormer->Undo.Keep();
}

std::string TQELWallPaper::Current() const { return CurrentFile(); }

void TQELWallPaper::SetStyle(TQELWallPaperStyle style) {
  if (style >= wpCenter && style <= wpFill) FStyle = style;
}

std::string TQELWallPaper::DesignText() const {
  return vcl::Concat("At run time it would put '", FFilename, "' on the user's desktop.");
}

bool TQELWallPaper::DoExecute() {
  static constexpr const char* styles[] = {"0", "0", "2", "6", "10"};
  TLook look{{}, styles[FStyle], FStyle == wpTile ? "1" : "0"};
  if (!FFilename.empty()) {
    look.File = vcl::ExpandFileName(FFilename);
    vcl::TPicture picture;
    picture.LoadFromFile(look.File);  // Raises when it is none.
  }
  auto former = FFormer ? nullptr : std::make_unique<TFormer>();
  try {
    Show(look, !FPreview);
  } catch (...) {
    if (former) former->Undo.Keep();
    throw;
  }
  if (former) FFormer = std::move(former);
  if (!FPreview) FFormer->Undo.Keep();
  return true;
}

bool TQELWallPaper::Restore() {
  return Try([this] {
    if (!FFormer) throw vcl::Exception("The desktop's picture has not been changed");
    Show(FFormer->Look, true);
    FFormer->Undo.Keep();
    FFormer.reset();
    return true;
  });
}

}  // namespace qel
