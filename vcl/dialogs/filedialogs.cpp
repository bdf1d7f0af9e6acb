// TOpenDialog and TSaveDialog: filters, options and the names chosen, to the system's dialog and
// back.
#include "vcl/dialogs/filedialogs.h"

#include <algorithm>
#include <vector>

#include "vcl/rtl/properties.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr DWORD OptionFlags[] = {
    OFN_READONLY,         OFN_OVERWRITEPROMPT,  OFN_HIDEREADONLY,       OFN_NOCHANGEDIR,
    OFN_NOVALIDATE,       OFN_ALLOWMULTISELECT, OFN_EXTENSIONDIFFERENT, OFN_PATHMUSTEXIST,
    OFN_FILEMUSTEXIST,    OFN_CREATEPROMPT,     OFN_SHAREAWARE,         OFN_NOREADONLYRETURN,
    OFN_NOTESTFILECREATE, OFN_NONETWORKBUTTON,  OFN_NODEREFERENCELINKS, OFN_ENABLESIZING,
    OFN_DONTADDTORECENT,  OFN_FORCESHOWHIDDEN,
};

// The system wants zeros between the parts and two behind the last one.
std::wstring FilterParts(const std::string& filter) {
  std::wstring parts = ToUtf16(filter);
  std::replace(parts.begin(), parts.end(), L'|', L'\0');
  return parts + std::wstring(2, L'\0');
}

// One whole name, or the folder and then the names in it, each with a zero behind it.
void ReadNames(const wchar_t* names, TStrings& files) {
  const std::wstring first = names;
  names += first.size() + 1;
  if (!*names) files.Add(ToUtf8(first));
  const bool slash = !first.empty() && first.back() == L'\\';
  for (; *names; names += std::wcslen(names) + 1)
    files.Add(ToUtf8(first + (slash ? L"" : L"\\") + names));
}

}  // namespace

const TClass& TOpenDialog::Class() {
  using T = TOpenDialog;
  static const TClass info = Describe<T, TCommonDialog>(
      "vcl::TOpenDialog", "vcl/dialogs/dialogs.h",
      {
          Property<&T::DefaultExt, &T::SetDefaultExt>("DefaultExt").Default(""),
          Property<&T::FileName, &T::SetFileName>("FileName").Default("").Type("TFileName"),
          Property<&T::Filter, &T::SetFilter>("Filter").Default(""),
          Property<&T::FilterIndex, &T::SetFilterIndex>("FilterIndex").Default(1),
          Property<&T::InitialDir, &T::SetInitialDir>("InitialDir").Default(""),
          Property<&T::Options, &T::SetOptions>("Options").Default(
              TOpenOptions{ofHideReadOnly, ofEnableSizing}),
          Property<&T::Title, &T::SetTitle>("Title").Default(""),
          Event<&T::OnCanClose>("OnCanClose"),
          Event<&T::OnFolderChange>("OnFolderChange"),
          Event<&T::OnSelectionChange>("OnSelectionChange"),
          Event<&T::OnTypeChange>("OnTypeChange"),
      });
  return info;
}

const TClass& TSaveDialog::Class() {
  static const TClass info =
      Describe<TSaveDialog, TOpenDialog>("vcl::TSaveDialog", "vcl/dialogs/dialogs.h", {});
  return info;
}

TOpenDialog::TOpenDialog(TComponent* owner)
    : TCommonDialog(owner), FFiles(std::make_unique<TStringList>()) {}

TOpenDialog::~TOpenDialog() { AnnounceEnd(); }

void TOpenDialog::SetDefaultExt(const std::string& extension) {
  FDefaultExt = extension.substr(extension.starts_with('.') ? 1 : 0);
}

bool TOpenDialog::Execute() { return Choose(&::GetOpenFileNameW); }
bool TSaveDialog::Execute() { return Choose(&::GetSaveFileNameW); }

bool TOpenDialog::Choose(TFunction function) {
  const std::wstring filter = FilterParts(FFilter), folder = ToUtf16(FInitialDir),
                     extension = ToUtf16(FDefaultExt), title = ToUtf16(FTitle);
  constexpr std::size_t longest = 0xFFFF;  // More than that the system does not take.
  std::vector<wchar_t> names(longest);
  const std::wstring offered = ToUtf16(FFileName);
  if (offered.size() < longest) std::copy(offered.begin(), offered.end(), names.begin());

  OPENFILENAMEW data{};
  data.lStructSize = sizeof data;
  data.hInstance = ::GetModuleHandleW(nullptr);
  data.lpstrFilter = FFilter.empty() ? nullptr : filter.c_str();
  data.nFilterIndex = static_cast<DWORD>(FFilterIndex);
  data.lpstrFile = names.data();
  data.nMaxFile = static_cast<DWORD>(names.size());
  data.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
  data.lpstrTitle = title.empty() ? nullptr : title.c_str();
  data.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
  data.Flags = OFN_EXPLORER | FlagsOf(FOptions, OptionFlags);
  if (NeedsHook()) {
    data.Flags |= OFN_ENABLEHOOK;
    data.lpfnHook = &Hook;
  }
  const auto show = [&](HWND owner) {
    data.hwndOwner = owner;
    if (function(&data)) return TRUE;
    if (::CommDlgExtendedError() != FNERR_INVALIDFILENAME) return FALSE;
    names[0] = 0;
    return function(&data);
  };
  if (!Run(show)) return false;
  Take(data);
  return true;
}

void TOpenDialog::Take(const OPENFILENAMEW& data) {
  FFiles->Clear();
  if (FOptions.Has(ofAllowMultiSelect)) {
    ReadNames(data.lpstrFile, *FFiles);
  } else {
    FFiles->Add(ToUtf8(data.lpstrFile));
  }
  FFileName = FFiles->Strings(0);
  FFilterIndex = static_cast<int>(data.nFilterIndex);
  for (const TOpenOption each : {ofReadOnly, ofExtensionDifferent}) {
    FOptions.Exclude(each);
    if (data.Flags & OptionFlags[each]) FOptions.Include(each);
  }
}

bool TOpenDialog::NeedsHook() const {
  return TCommonDialog::NeedsHook() || OnCanClose || OnFolderChange || OnSelectionChange ||
         OnTypeChange;
}

UINT_PTR TOpenDialog::HandleMessage(HWND window, UINT message, LPARAM lParam) {
  if (message != WM_NOTIFY) return TCommonDialog::HandleMessage(window, message, lParam);
  const auto& notice = *reinterpret_cast<const OFNOTIFYW*>(lParam);
  switch (notice.hdr.code) {
    case CDN_FILEOK: return Agreed(window, *notice.lpOFN);
    case CDN_FOLDERCHANGE: OnFolderChange(this); break;
    case CDN_SELCHANGE: OnSelectionChange(this); break;
    case CDN_TYPECHANGE:
      FFilterIndex = static_cast<int>(notice.lpOFN->nFilterIndex);
      OnTypeChange(this);
      break;
    default: break;
  }
  return 0;
}

UINT_PTR TOpenDialog::Agreed(HWND window, const OPENFILENAMEW& data) {
  Take(data);
  bool canClose = true;
  OnCanClose(this, canClose);
  if (canClose) return 0;
  ::SetWindowLongPtrW(window, DWLP_MSGRESULT, 1);
  return 1;
}

}  // namespace vcl
