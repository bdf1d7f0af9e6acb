// TQELLookupEdit: what the list shows, and what is chosen from it.
#include "qel/controls/Qeltlookupedit.h"

#include <algorithm>
#include <numeric>

#include "vcl/controls/propertygroups.h"
#include "vcl/graphics/canvas.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TShiftState;
using vcl::TWatch;

namespace {

constexpr int ButtonPart = 0;
constexpr int ButtonWidth = 17;  // At 96 dots per inch.

}  // namespace

const vcl::TClass& TQELLookupEdit::Class() {
  using T = TQELLookupEdit;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomPartEdit>(
      "qel::TQELLookupEdit", "qel/controls/Qeltlookupedit.h",
      {
          Inherit("About"),
          Inherit("Align"),
          Inherit("AutoSelect"),
          Inherit("AutoSize"),
          Inherit("BorderStyle"),
          Property<&T::CaseSensitive, &T::SetCaseSensitive>("CaseSensitive").Default(false),
          Inherit("CharCase"),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Property<&T::DropDownCount, &T::SetDropDownCount>("DropDownCount").Default(8),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("HideSelection"),
          Inherit("ImeMode"),
          Inherit("ImeName"),
          Property<&T::LimitToList, &T::SetLimitToList>("LimitToList").Default(false),
          Property<&T::MatchContains, &T::SetMatchContains>("MatchContains").Default(false),
          Inherit("MaxLength"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ReadOnly"),
          Property<&T::ShowButton, &T::SetShowButton>("ShowButton").Default(true),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Text"),
          Inherit("Visible"),
          Property<&T::Items, &T::SetItems>("Items"),
          Property<&T::ItemIndex, &T::SetItemIndex>("ItemIndex").Default(-1),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Event<&T::OnLookup>("OnLookup"),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Event<&T::OnSelect>("OnSelect"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TQELLookupEdit::TQELLookupEdit(vcl::TComponent* owner)
    : TQELCustomPartEdit(owner), FItems(std::make_unique<vcl::TStringList>()), FList(*this) {
  FItems->OnChange = [this](vcl::TObject*) { FMatcher.Forget(); };
  FList.OnChosen = [this](int line) { Choose(line); };
  FList.OnClosed = [this] { AccessibleChanged(vcl::acState); };
  HearOnlyAsked<TQELLookupEdit>();
}

TQELLookupEdit::~TQELLookupEdit() { AnnounceEnd(); }

void TQELLookupEdit::SetDropDownCount(int count) {
  if (count >= 1) FDropDownCount = count;
}

void TQELLookupEdit::SetShowButton(bool show) {
  FShowButton = show;
  PartsChanged();
}

// The item that the text is.

int TQELLookupEdit::IndexOfText(const std::string& text) const {
  for (int i = 0; i < FItems->Count(); ++i) {
    const std::string item = FItems->Strings(i);
    if (item == text || (!FCaseSensitive && vcl::AnsiSameText(item, text))) return i;
  }
  return -1;
}

int TQELLookupEdit::ItemIndex() const {
  if (Loading()) return FLoadedIndex;
  const std::string text = Text();
  if (IsItem(FItemIndex) && FItems->Strings(FItemIndex) == text) return FItemIndex;
  return IndexOfText(text);
}

void TQELLookupEdit::SetItemIndex(int index) {
  if (Loading()) {
    FLoadedIndex = index;
    return;
  }
  if (index != -1 && !IsItem(index)) return;
  FItemIndex = index;
  SetText(index < 0 ? std::string() : FItems->Strings(index));
}

void TQELLookupEdit::Loaded() {
  const TWatch watch(this);
  TQELCustomPartEdit::Loaded();
  if (!watch.Gone() && FLoadedIndex >= 0) SetItemIndex(std::exchange(FLoadedIndex, -1));
}

void TQELLookupEdit::SetTextBuf(const char* text) {
  const vcl::TSetFor byCode(FByCode, true, this);
  TQELCustomPartEdit::SetTextBuf(text);
}

// The list.

void TQELLookupEdit::Change() {
  const TWatch watch(this);
  TQELCustomPartEdit::Change();
  if (watch.Gone() || FByCode || !Focused()) return;
  const std::string text = Text();
  text.empty() ? FList.Close() : LookUp(text);
}

bool TQELLookupEdit::FillItems(const std::string& text) {
  if (!OnLookup) return false;
  const TWatch watch(this);
  OnLookup(this, text, FItems.get());
  return !watch.Gone();
}

void TQELLookupEdit::LookUp(const std::string& text) {
  const TWatch watch(this);
  const bool all = FillItems(text);
  if (watch.Gone()) return;
  OpenList(FMatcher.Find(*FItems, all ? std::string() : text, FMatchContains, FCaseSensitive),
           FLimitToList ? 0 : -1);
}

// An item may have gone since the list was made.
void TQELLookupEdit::OpenList(std::vector<int> lines, int current) {
  FLines = std::move(lines);
  const auto textAt = [this](int line) {
    const int item = FLines[static_cast<std::size_t>(line)];
    return IsItem(item) ? FItems->Strings(item) : std::string();
  };
  FList.Open(static_cast<int>(FLines.size()), textAt, current, FDropDownCount);
  AccessibleChanged(vcl::acState);
}

void TQELLookupEdit::SetDroppedDown(bool down) {
  if (down == DroppedDown()) return;
  if (!down) return FList.Close();
  const TWatch watch(this);
  FillItems(Text());
  if (watch.Gone()) return;
  std::vector<int> all(static_cast<std::size_t>(FItems->Count()));
  std::iota(all.begin(), all.end(), 0);
  OpenList(std::move(all), ItemIndex());
}

void TQELLookupEdit::Choose(int line) {
  const int item = FLines[static_cast<std::size_t>(line)];
  if (!CanModify() || !IsItem(item)) return;
  const TWatch watch(this);
  SetItemIndex(item);
  if (watch.Gone()) return;
  FLastItem = Text();
  SelectAll();
  OnSelect(this);
}

void TQELLookupEdit::DoEnter() {
  if (IndexOfText(Text()) >= 0) FLastItem = Text();
  TQELCustomPartEdit::DoEnter();
}

void TQELLookupEdit::DoExit() {
  const TWatch watch(this);
  FList.Close();
  if (FLimitToList) KeepToList();
  if (!watch.Gone()) TQELCustomPartEdit::DoExit();
}

void TQELLookupEdit::KeepToList() {
  const std::string text = Text();
  if (text.empty()) return;
  const int item = ItemIndex();
  const std::string kept = item < 0 ? FLastItem : FItems->Strings(item);
  if (kept != text) SetText(kept);
}

void TQELLookupEdit::DestroyWnd() {
  FList.Close();
  TQELCustomPartEdit::DestroyWnd();
}

// Keys and the button.

bool TQELLookupEdit::OpensList(std::uint16_t key, TShiftState shift) const {
  if (DroppedDown() || !CanModify()) return false;
  return key == VK_DOWN || (key == VK_F4 && !shift.Has(vcl::ssAlt));
}

void TQELLookupEdit::KeyDown(std::uint16_t& key, TShiftState shift) {
  const TWatch watch(this);
  const bool toggles = DroppedDown() && shift.Has(vcl::ssAlt) && (key == VK_UP || key == VK_DOWN);
  FKeyTaken = FList.WantsKey(key);
  const bool opens = OpensList(key, shift);
  if (toggles) FList.Close();
  if (opens) SetDroppedDown(true);
  if (watch.Gone()) return;
  if (toggles || opens || FList.TakeKey(key)) {
    key = 0;
    return;
  }
  TQELCustomPartEdit::KeyDown(key, shift);
}

void TQELLookupEdit::KeyPress(char32_t& key) {
  if (std::exchange(FKeyTaken, false) && (key == VK_RETURN || key == VK_ESCAPE)) {
    key = 0;
    return;
  }
  TQELCustomPartEdit::KeyPress(key);
}

void TQELLookupEdit::Dispatch(vcl::TMessage& message) {
  if (message.Msg == vcl::CM_WANTSPECIALKEY &&
      FList.WantsKey(static_cast<std::uint16_t>(message.WParam))) {
    message.Result = 1;
    return;
  }
  const TWatch watch(this);
  if (FList.Follow(message) || watch.Gone()) return;
  TQELCustomPartEdit::Dispatch(message);
}

std::vector<TQELEditPart> TQELLookupEdit::Parts() const {
  if (!FShowButton) return {};
  return {{ButtonPart, ScaledPixels(ButtonWidth), false, true, "Open"}};
}

bool TQELLookupEdit::PartEnabled(int /*number*/) const { return Enabled() && CanModify(); }

void TQELLookupEdit::PressPart(int /*number*/) { SetDroppedDown(!DroppedDown()); }

void TQELLookupEdit::DrawPart(vcl::TCanvas& canvas, int /*number*/, const TRect& rect,
                              TQELPartLook look) {
  static constexpr UINT looks[] = {0, DFCS_HOT, DFCS_PUSHED, DFCS_INACTIVE};
  RECT frame = rect;
  ::DrawFrameControl(canvas.Handle(), &frame, DFC_SCROLL,
                     DFCS_SCROLLCOMBOBOX | looks[static_cast<int>(look)]);
}

void TQELLookupEdit::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomPartEdit::DescribeAccessible(info);
  info.Role = vcl::arComboBox;
  info.State.Include(DroppedDown() ? vcl::asExpanded : vcl::asCollapsed);
  info.DefaultAction = DroppedDown() ? "Close" : "Open";
}

}  // namespace qel
