// TQELFileLabel: which text of the file, its picture, and opening it.
#include "qel/shell/Qeltfilelabel.h"

#include "qel/shell/private/folders.h"
#include "vcl/controls/scaling.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/systemerrors.h"
#include "vcl/rtl/utf16.h"

#include <commctrl.h>
#include <shellapi.h>

namespace qel {
namespace {

/// ROLE_SYSTEM_LINK.
constexpr auto LinkRole = static_cast<vcl::TAccessibleRole>(30);

constexpr int IconGap = 4;  // Pixels at 96 dots per inch.

}  // namespace

const vcl::TClass& TQELFileLabel::Class() {
  using T = TQELFileLabel;
  using namespace vcl;
  static constexpr const char* inherited[] = {
      "About",      "Align",       "Alignment",   "Color",       "DragCursor",     "DragMode",
      "Enabled",    "Font",        "ParentColor", "ParentFont",  "ParentShowHint", "PopupMenu",
      "ShowHint",   "Transparent", "Visible",     "OnClick",     "OnDblClick",     "OnDragDrop",
      "OnDragOver", "OnEndDrag",   "OnMouseDown", "OnMouseMove", "OnMouseUp",      "OnStartDrag"};
  static const TClass info = Describe<T, TQELComputedLabel>(
      "qel::TQELFileLabel", "qel/shell/Qeltfilelabel.h",
      {
          Inherit(inherited),
          Inherit("AutoSize").Default(false),
          Property<&T::ClickOpens, &T::SetClickOpens>("ClickOpens").Default(false),
          Property<&T::Display, &T::SetDisplay>("Display").Default(fdPath),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::ShowIcon, &T::SetShowIcon>("ShowIcon").Default(false),
          Inherit("Caption"),
      });
  return info;
}

const vcl::TClass& TQELFileLabel3D::Class() {
  using T = TQELFileLabel3D;
  using namespace vcl;
  static const TClass info =
      Describe<T, TQELFileLabel>("qel::TQELFileLabel3D", "qel/shell/Qeltfilelabel.h",
                                 {
                                     Inherit("Background"),
                                     Inherit("Font3D"),
                                 });
  return info;
}

TQELFileLabel::TQELFileLabel(vcl::TComponent* owner) : TQELComputedLabel(owner) {
  Font3D()->SetThreeDimensional(false);
  // A path is shortened to what there is room for.
  SetAutoSize(false);
  SetBounds(Left(), Top(), 185, 20);
  HearOnlyAsked<TQELFileLabel>();
  Refresh();
}

TQELFileLabel::~TQELFileLabel() { AnnounceEnd(); }

TQELFileLabel3D::TQELFileLabel3D(vcl::TComponent* owner) : TQELFileLabel(owner) {
  Font3D()->SetThreeDimensional(true);
  HearOnlyAsked<TQELFileLabel3D>();
}

void TQELFileLabel::SetFilename(const std::string& fileName) {
  FFilename = fileName;
  Refresh();
  Invalidate();
}

void TQELFileLabel::SetDisplay(TQELFileLabelDisplay display) {
  FDisplay = display;
  Refresh();
}

void TQELFileLabel::SetShowIcon(bool show) {
  FShowIcon = show;
  AdjustBounds();
  Invalidate();
}

void TQELFileLabel::SetClickOpens(bool opens) { FClickOpens = opens; }

// ---- What is shown ----

std::string TQELFileLabel::ComputeText() const {
  if (FFilename.empty()) return {};
  const std::string extension = vcl::ExtractFileExt(FFilename);
  const auto entry = folders::EntryOf(FFilename);
  const bool own = entry && (entry->IsFolder() || folders::HasOwnPicture(extension));
  FPicture = own ? folders::PictureOf(FFilename) : folders::PictureOfFiles(extension);
  switch (FDisplay) {
    case fdPath: return FFilename;
    case fdName: return vcl::ExtractFileName(FFilename);
    case fdFolder: return vcl::ExtractFilePath(FFilename);
    case fdSize: return entry && !entry->IsFolder() ? folders::SizeText(entry->Size) : "";
    case fdDate: return entry ? vcl::DateTimeToStr(folders::LocalTime(entry->Written)) : "";
    case fdType:
      if (!entry) return {};
      return entry->IsFolder() ? folders::TypeOfFolders() : folders::TypeOfFiles(extension);
  }
  return {};
}

unsigned TQELFileLabel::WriteFlags() const {
  const unsigned shortened = ShowsPath() ? DT_PATH_ELLIPSIS : DT_END_ELLIPSIS;
  return TQELComputedLabel::WriteFlags() | DT_SINGLELINE | shortened;
}

int TQELFileLabel::TextIndent() const {
  if (!FShowIcon || FFilename.empty()) return 0;
  int width = 0, height = 0;
  ::ImageList_GetIconSize(folders::SystemImages(ScaledPixels(vcl::DefaultPixelsPerInch)), &width,
                          &height);
  return width + ScaledPixels(IconGap);
}

void TQELFileLabel::Paint() {
  TQELComputedLabel::Paint();
  if (!FShowIcon || FFilename.empty()) return;
  const HIMAGELIST images = folders::SystemImages(ScaledPixels(vcl::DefaultPixelsPerInch));
  const UINT style = Enabled() ? ILD_TRANSPARENT : ILD_TRANSPARENT | ILD_BLEND50;
  ::ImageList_DrawEx(images, FPicture, Canvas()->Handle(), 0, 0, 0, 0, CLR_NONE,
                     ::GetSysColor(COLOR_BTNFACE), style);
}

// ---- Opening ----

bool TQELFileLabel::Open() {
  FLastError.clear();
  if (FFilename.empty()) {
    FLastError = "There is no file to open";
    return false;
  }
  // By its whole name: a bare one would be looked for elsewhere.
  const std::string file = vcl::ExpandFileName(FFilename);
  SHELLEXECUTEINFOW order{};
  const std::wstring name = vcl::ToUtf16(file);
  order.cbSize = sizeof order;
  order.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
  order.hwnd = vcl::Application()->Handle();
  order.lpVerb = L"open";
  order.lpFile = name.c_str();
  order.nShow = SW_SHOWNORMAL;
  // The shell may handle this program's messages.
  const vcl::TWatch watch(this);
  const bool opened = ::ShellExecuteExW(&order);
  const int code = opened ? 0 : vcl::LastSystemError();
  if (!opened && !watch.Gone())
    FLastError = vcl::Concat("Cannot open '", file, "': ", vcl::SysErrorMessage(code));
  return opened;
}

void TQELFileLabel::Click() {
  const vcl::TWatch watch(this);
  TQELComputedLabel::Click();
  if (!watch.Gone() && FClickOpens && Enabled() && !Designing()) Open();
}

void TQELFileLabel::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELComputedLabel::DescribeAccessible(info);
  if (!FClickOpens) return;
  info.Role = LinkRole;
  info.DefaultAction = "Open";
}

void TQELFileLabel::DoAccessibleAction() {
  if (FClickOpens) Click();
}

}  // namespace qel
