// TQELFolderBrowser: its table, and the system's dialog with what it asks meanwhile.
#include "qel/dialogs/Qeltfolderbrowser.h"

#include <iterator>
#include <type_traits>

#include "qel/dialogs/private/systemhelp.h"
#include "vcl/dialogs/commondialog.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/watch.h"
#include "vcl/rtl/win32.h"

// Behind win32.h, on which it stands.
#include <shlobj.h>

namespace qel {

namespace {

/// Longer than any path that the shell names.
constexpr DWORD LongestPath = 32768;

struct TFreeList {
  void operator()(ITEMIDLIST* list) const { ::CoTaskMemFree(list); }
};
using TItemList = std::unique_ptr<ITEMIDLIST, TFreeList>;

/// The shell's name for a folder; null for what is none.
TItemList ItemListOf(const std::string& path) {
  ITEMIDLIST* list = nullptr;
  const std::wstring wide = vcl::ToUtf16(path);
  if (FAILED(::SHParseDisplayName(wide.c_str(), nullptr, &list, 0, nullptr))) return nullptr;
  return TItemList(list);
}

std::string PathOf(const ITEMIDLIST* list) {
  std::wstring path(LongestPath, L'\0');
  if (!::SHGetPathFromIDListEx(list, path.data(), LongestPath, GPFIDL_DEFAULT)) return {};
  return vcl::ToUtf8(path.c_str());
}

// The new look without its button is another flag, so the button brings the look with it.
constexpr DWORD OptionFlags[] = {BIF_NEWDIALOGSTYLE, BIF_EDITBOX, BIF_BROWSEINCLUDEFILES,
                                 BIF_EDITBOX | BIF_VALIDATE};

}  // namespace

/// The system's dialog, modal as its other ones are. What it was set to is copied: the component
/// may be freed while it is up.
class TQELFolderBrowser::TBox : public vcl::TCommonDialog {
 public:
  explicit TBox(TQELFolderBrowser& browser) : TCommonDialog(nullptr), FBrowser(browser) {}
  ~TBox() override { AnnounceEnd(); }
  /// The path that was chosen; empty for none.
  std::string Chosen;

  bool Execute() override {
    const TItemList root = FBrowser.FRoot.empty() ? nullptr : ItemListOf(FBrowser.FRoot);
    const std::wstring title = vcl::ToUtf16(FBrowser.FTitle);
    const bool usable = SUCCEEDED(::OleInitialize(nullptr));
    const vcl::TAtEnd done([usable] {
      if (usable) ::OleUninitialize();
    });
    BROWSEINFOW info{};
    info.pidlRoot = root.get();
    info.lpszTitle = title.c_str();
    info.ulFlags = BIF_RETURNONLYFSDIRS | BIF_STATUSTEXT | Flags();
    info.lpfn = &Called;
    info.lParam = reinterpret_cast<LPARAM>(this);
    TItemList chosen;
    const bool agreed = Run([&](HWND owner) {
      info.hwndOwner = owner;
      chosen.reset(::SHBrowseForFolderW(&info));
      return BOOL{chosen != nullptr};
    });
    if (!agreed) return false;
    Chosen = PathOf(chosen.get());
    return !Chosen.empty();
  }

 private:
  DWORD Flags() const { return vcl::FlagsOf(FBrowser.FOptions, OptionFlags); }

  /// What the dialog tells; what is raised meanwhile doesn't go through the system.
  static int CALLBACK Called(HWND window, UINT message, LPARAM lParam, LPARAM data) {
    auto* box = reinterpret_cast<TBox*>(data);
    const vcl::TWatch watch(box);
    try {
      return box->Hear(window, message, lParam);
    } catch (...) {
      vcl::Application()->HandleCurrentException(watch.Gone() ? nullptr : &box->FBrowser);
      return 0;
    }
  }

  int Hear(HWND window, UINT message, LPARAM lParam) {
    switch (message) {
      case BFFM_INITIALIZED: Select(window); return 0;
      case BFFM_SELCHANGED: Selected(window, reinterpret_cast<const ITEMIDLIST*>(lParam)); return 0;
      // True keeps the dialog open.
      case BFFM_VALIDATEFAILEDW: return 1;
      default: return 0;
    }
  }

  void Select(HWND window) const {
    if (FBrowser.FFolder.empty()) return;
    const std::wstring folder = vcl::ToUtf16(FBrowser.FFolder);
    ::SendMessageW(window, BFFM_SETSELECTIONW, TRUE, reinterpret_cast<LPARAM>(folder.c_str()));
  }

  void Selected(HWND window, const ITEMIDLIST* list) {
    if (!FBrowser.OnSelection) return;
    const vcl::TWatch watch(this);
    bool enabled = true;
    std::string text;
    FBrowser.OnSelection(&FBrowser, PathOf(list), enabled, text);
    if (watch.Gone()) {
      ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
      return;
    }
    const std::wstring shown = vcl::ToUtf16(text);
    ::SendMessageW(window, BFFM_ENABLEOK, 0, enabled);
    ::SendMessageW(window, BFFM_SETSTATUSTEXTW, 0, reinterpret_cast<LPARAM>(shown.c_str()));
  }

  TQELFolderBrowser& FBrowser;
};

const vcl::TClass& TQELFolderBrowser::Class() {
  using T = TQELFolderBrowser;
  using namespace vcl;
  static const TClass info = Describe<T, TQELHelpDialog>(
      "qel::TQELFolderBrowser", "qel/dialogs/Qeltfolderbrowser.h",
      {
          Property<&T::Folder, &T::SetFolder>("Folder"),
          Property<&T::Options, &T::SetOptions>("Options").Default(TQELFolderBrowserOptions()),
          Property<&T::Root, &T::SetRoot>("Root"),
          Property<&T::Title, &T::SetTitle>("Title"),
          Event<&T::OnSelection>("OnSelection"),
      });
  return info;
}

TQELFolderBrowser::TQELFolderBrowser(vcl::TComponent* owner)
    : TQELHelpDialog(owner), FBox(std::make_unique<TBox>(*this)) {}

TQELFolderBrowser::~TQELFolderBrowser() { AnnounceEnd(); }

bool TQELFolderBrowser::Execute() {
  FLastError.clear();
  if (!FRoot.empty() && !ItemListOf(FRoot)) {
    FLastError = vcl::Concat("The folder \"", FRoot, "\" is not there");
    return false;
  }
  TQELHelpDialog::Execute();
  const vcl::TWatch watch(this);
  const TSystemHelp help(*this);
  if (!FBox->Execute() || watch.Gone()) return false;
  FFolder = FBox->Chosen;
  return true;
}

}  // namespace qel
