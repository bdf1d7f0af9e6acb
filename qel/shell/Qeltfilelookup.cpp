// TQELFileLookup: its table, the names in a folder, and the button of the dialog.
#include "qel/shell/Qeltfilelookup.h"

#include <algorithm>

#include "qel/shell/private/folders.h"
#include "vcl/dialogs/filedialogs.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filemasks.h"
#include "vcl/rtl/filenames.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"

namespace qel {
namespace {

constexpr int DialogPart = 1;          // The inherited part is 0.
constexpr int DialogWidth = 17;        // At 96 dots per inch.
constexpr std::uint64_t Fresh = 2000;  // Milliseconds for which a folder's names are believed.

bool IsThere(const std::string& name) {
  const folders::TNoErrorBoxes quiet;
  return vcl::FileExists(name) || vcl::DirectoryExists(name);
}

/// The names of what can be seen in a folder: folders, which end with a backslash, and files that
/// the masks mean, both in order. A server without a share is not asked for what it has.
std::vector<std::string> NamesOf(const std::string& path, const vcl::TFileMasks& masks) {
  std::vector<std::string> inner, files;
  if (folders::RootSize(path) == 0) return inner;
  try {
    folders::ScanEntries(path, [&](const folders::TEntry& entry) {
      if (entry.Attributes & FILE_ATTRIBUTE_HIDDEN) return true;
      if (entry.IsFolder()) inner.push_back(entry.Name + "\\");
      if (!entry.IsFolder() && masks.Matches(entry.Name)) files.push_back(entry.Name);
      return true;
    });
  } catch (const vcl::EInOutError&) {
    // While a name is typed, most that stands before it is no folder yet.
    return {};
  }
  folders::Sort(inner);
  folders::Sort(files);
  inner.insert(inner.end(), files.begin(), files.end());
  return inner;
}

}  // namespace

const vcl::TClass& TQELFileLookup::Class() {
  using T = TQELFileLookup;
  using namespace vcl;
  static const TClass info = Describe<T, TQELLookupEdit>(
      "qel::TQELFileLookup", "qel/shell/Qeltfilelookup.h",
      {
          Property<&T::DialogTitle, &T::SetDialogTitle>("DialogTitle").Default(""),
          Property<&T::Filter, &T::SetFilter>("Filter").Default(""),
          Property<&T::FilterIndex, &T::SetFilterIndex>("FilterIndex").Default(1),
          Property<&T::MustExist, &T::SetMustExist>("MustExist").Default(false),
      });
  return info;
}

TQELFileLookup::TQELFileLookup(vcl::TComponent* owner)
    : TQELLookupEdit(owner), FNames(std::make_unique<vcl::TStringList>()) {
  HearOnlyAsked<TQELFileLookup>();
}

TQELFileLookup::~TQELFileLookup() { AnnounceEnd(); }

void TQELFileLookup::SetFilter(const std::string& filter) {
  FFilter = filter;
  FReadAt = 0;
}

void TQELFileLookup::SetFilterIndex(int index) {
  FFilterIndex = index;
  FReadAt = 0;
}

/// Those of the filter that holds: every second part of them.
std::string TQELFileLookup::Masks() const {
  int part = 0;
  std::size_t begin = 0;
  while (begin <= FFilter.size()) {
    const std::size_t end = std::min(FFilter.find('|', begin), FFilter.size());
    if (++part == 2 * FFilterIndex) return FFilter.substr(begin, end - begin);
    begin = end + 1;
  }
  return {};
}

// The list.

/// What is in the folder, or the drives and what is in the current folder. Between two keys it is
/// not read again.
const vcl::TStrings& TQELFileLookup::NamesIn(const std::string& folder) {
  const std::uint64_t now = ::GetTickCount64();
  const std::string path = folders::Normalized(folder.empty() ? "." : folder);
  // Where the folder is not told, the current one may be another by now.
  const std::string known = folder + "|" + path;
  if (FReadAt != 0 && known == FKnown && now - FReadAt < Fresh) return *FNames;
  FKnown = known;
  FNames->Clear();
  if (folder.empty()) {
    for (const std::string& drive : folders::Drives()) FNames->Add(drive);
  }
  for (const std::string& name : NamesOf(path, vcl::TFileMasks(Masks()))) FNames->Add(name);
  FReadAt = now;
  return *FNames;
}

void TQELFileLookup::LookUp(const std::string& text) {
  const vcl::TSetFor typing(FTyping, true, this);
  TQELLookupEdit::LookUp(text);
}

bool TQELFileLookup::FillItems(const std::string& text) {
  if (OnLookup) return TQELLookupEdit::FillItems(text);
  std::string folder = vcl::ExtractFilePath(text);
  // "C:" is the beginning of a drive's name.
  if (!folder.empty() && folder.back() == ':') folder.clear();
  const vcl::TStrings& names = NamesIn(folder);
  TQELTextMatcher matcher;
  const std::string typed = FTyping ? text.substr(folder.size()) : std::string();
  const vcl::TUpdating updating(*Items(), this);
  Items()->Clear();
  for (const int each : matcher.Find(names, typed, MatchContains(), CaseSensitive()))
    Items()->Add(folder + names.Strings(each));
  return true;
}

/// What is in a folder that was chosen can be typed behind it.
void TQELFileLookup::Choose(int line) {
  const vcl::TWatch watch(this);
  TQELLookupEdit::Choose(line);
  if (watch.Gone() || !Text().ends_with('\\')) return;
  SetSelStart(static_cast<int>(vcl::ToUtf16(Text()).size()));
}

void TQELFileLookup::DoEnter() {
  if (const std::string text = Text(); FMustExist || LimitToList()) {
    if (IsThere(text)) FLastName = text;
  }
  TQELLookupEdit::DoEnter();
}

void TQELFileLookup::DoExit() {
  const vcl::TWatch watch(this);
  if (FMustExist && !LimitToList()) KeepToList();
  if (!watch.Gone()) TQELLookupEdit::DoExit();
}

void TQELFileLookup::KeepToList() {
  const std::string text = Text();
  if (text.empty()) return;
  if (IsThere(text)) {
    FLastName = text;
  } else {
    SetText(FLastName);
  }
}

// The dialog.

bool TQELFileLookup::Browse() {
  const vcl::TWatch watch(this);
  SetDroppedDown(false);
  vcl::TOpenDialog dialog(nullptr);
  const std::string text = Text();
  const std::string folder = text.empty() ? text : folders::Normalized(text);
  const bool isFolder = !folder.empty() && folders::Exists(folder);
  dialog.SetInitialDir(isFolder ? folder : vcl::ExtractFileDir(text));
  if (!isFolder) dialog.SetFileName(text);
  dialog.SetTitle(FDialogTitle);
  dialog.SetFilter(FFilter);
  dialog.SetFilterIndex(FFilterIndex);
  if (FMustExist) {
    dialog.SetOptions(dialog.Options() +
                      vcl::TOpenOptions{vcl::ofPathMustExist, vcl::ofFileMustExist});
  }
  if (!dialog.Execute() || watch.Gone()) return false;
  SetFilterIndex(dialog.FilterIndex());
  Take(dialog.FileName());
  return true;
}

void TQELFileLookup::Take(const std::string& name) {
  const vcl::TWatch watch(this);
  SetText(name);
  if (watch.Gone()) return;
  FLastName = name;
  SelectAll();
  OnSelect(this);
}

std::vector<TQELEditPart> TQELFileLookup::Parts() const {
  std::vector<TQELEditPart> parts = TQELLookupEdit::Parts();
  parts.insert(parts.begin(), {DialogPart, ScaledPixels(DialogWidth), false, true, "Browse"});
  return parts;
}

void TQELFileLookup::PressPart(int number) {
  if (number != DialogPart) return TQELLookupEdit::PressPart(number);
  Browse();
}

/// A button of the system's with three dots.
void TQELFileLookup::DrawPart(vcl::TCanvas& canvas, int number, const vcl::TRect& rect,
                              TQELPartLook look) {
  if (number != DialogPart) return TQELLookupEdit::DrawPart(canvas, number, rect, look);
  static constexpr UINT looks[] = {0, DFCS_HOT, DFCS_PUSHED, DFCS_INACTIVE};
  RECT frame = rect;
  ::DrawFrameControl(canvas.Handle(), &frame, DFC_BUTTON,
                     DFCS_BUTTONPUSH | looks[static_cast<int>(look)]);
  const int dot = ScaledPixels(2);
  const int moved = look == TQELPartLook::Pressed ? 1 : 0;
  const int top = rect.Bottom - 3 * dot + moved;
  int left = (rect.Left + rect.Right - 5 * dot) / 2 + moved;
  canvas.Brush()->SetColor(look == TQELPartLook::Disabled ? vcl::clGrayText : vcl::clBtnText);
  for (int i = 0; i < 3; ++i, left += 2 * dot) canvas.FillRect({left, top, left + dot, top + dot});
}

void TQELFileLookup::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  if (key != VK_F4 || !shift.Has(vcl::ssShift) || !CanModify())
    return TQELLookupEdit::KeyDown(key, shift);
  key = 0;
  Browse();
}

}  // namespace qel
