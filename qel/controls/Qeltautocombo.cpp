// TQELAutoCombo: completing, remembering, and keeping what is remembered.
#include "qel/controls/Qeltautocombo.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr const char* StoreSection = "Auto Combos";

int Utf16Length(const std::string& text) { return static_cast<int>(vcl::ToUtf16(text).size()); }

}  // namespace

const vcl::TClass& TQELAutoCombo::Class() {
  using T = TQELAutoCombo;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomComboBox>(
      "qel::TQELAutoCombo", "qel/controls/Qeltautocombo.h",
      {
          vcl::ReadOnly<&T::About>("About"),
          Inherit("Align"),
          Property<&T::AutoComplete, &T::SetAutoComplete>("AutoComplete").Default(true),
          Property<&T::CaseSensitive, &T::SetCaseSensitive>("CaseSensitive").Default(false),
          Inherit("Color"),
          Inherit("Ctl3D"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("DropDownCount"),
          Inherit("Enabled"),
          Inherit("Font"),
          vcl::ReadOnly<&T::HistoryStore>("HistoryStore"),
          Inherit("ImeMode"),
          Inherit("ImeName"),
          Property<&T::MaxItems, &T::SetMaxItems>("MaxItems").Default(20),
          Inherit("MaxLength"),
          Inherit("ParentColor"),
          Inherit("ParentCtl3D"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Property<&T::RememberOn, &T::SetRememberOn>("RememberOn")
              .Default(TQELAutoRememberOn{roEnter, roExit}),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop"),
          Inherit("Text"),
          Inherit("Visible"),
          Inherit("OnChange"),
          Inherit("OnClick"),
          Inherit("OnCloseUp"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit("OnDropDown"),
          Inherit(FocusEvents),
          Inherit(KeyEvents),
          Inherit(WheelEvents),
          Event<&T::OnRemember>("OnRemember"),
          Inherit("OnStartDrag"),
          Inherit("Items"),
      });
  return info;
}

TQELAutoCombo::TQELAutoCombo(vcl::TComponent* owner)
    : TCustomComboBox(owner),
      FAbout(std::make_unique<TQELAbout>(this)),
      FHistoryStore(std::make_unique<TQELDataStore>()) {
  FHistoryStore->Registry()->SetSection(StoreSection);
  FHistoryStore->Inifile()->SetSection(StoreSection);
  FHistoryStore->SetEnabled(false);
  HearOnlyAsked<TQELAutoCombo>();
}

TQELAutoCombo::~TQELAutoCombo() { AnnounceEnd(); }

void TQELAutoCombo::SetMaxItems(int count) {
  if (count >= 1) FMaxItems = count;
}

// Completing.

void TQELAutoCombo::KeyDown(std::uint16_t& key, vcl::TShiftState shift) {
  FTyped = false;
  TCustomComboBox::KeyDown(key, shift);
}

void TQELAutoCombo::KeyPress(char32_t& key) {
  const TWatch watch(this);
  TCustomComboBox::KeyPress(key);
  if (watch.Gone()) return;
  // Deleting is no typing: what was completed would come back at once.
  FTyped = key >= U' ' && key != 0x7F;
  if (key != U'\r' || !FRememberOn.Has(roEnter)) return;
  Remember(Text());
}

void TQELAutoCombo::Change() {
  const TWatch watch(this);
  TCustomComboBox::Change();
  if (!watch.Gone() && std::exchange(FTyped, false) && FAutoComplete && Editing()) Complete();
}

/// Only behind the end of what is typed, which keeps its letters as they are.
void TQELAutoCombo::Complete() {
  const std::string typed = Text();
  const int length = Utf16Length(typed);
  if (typed.empty() || SelStart() != length) return;
  for (int i = 0; i < Items()->Count(); ++i) {
    const std::string item = Items()->Strings(i);
    if (item.size() <= typed.size() || !Same(item.substr(0, typed.size()), typed)) continue;
    const TWatch watch(this);
    SetText(typed + item.substr(typed.size()));
    if (!watch.Gone()) Select(length, Utf16Length(item) - length);
    return;
  }
}

bool TQELAutoCombo::Same(const std::string& a, const std::string& b) const {
  return FCaseSensitive ? a == b : vcl::AnsiSameText(a, b);
}

int TQELAutoCombo::IndexOf(const std::string& text) const {
  for (int i = 0; i < Items()->Count(); ++i) {
    if (Same(Items()->Strings(i), text)) return i;
  }
  return -1;
}

// Remembering.

void TQELAutoCombo::DoExit() {
  const TWatch watch(this);
  if (FRememberOn.Has(roExit)) Remember(Text());
  if (!watch.Gone()) TCustomComboBox::DoExit();
}

void TQELAutoCombo::Remember(const std::string& text) {
  // What stands at the top is remembered already.
  const bool first = Items()->Count() > 0 && Items()->Strings(0) == text;
  if (text.empty() || first || Designing()) return;
  bool remember = true;
  const TWatch watch(this);
  OnRemember(this, text, remember);
  if (watch.Gone() || !remember) return;
  if (FUnread && !Guarded([&] { LoadHistory(); })) return;
  MoveToTop(text);
  if (!watch.Gone()) Guarded([&] { SaveHistory(); });
}

/// The text in the edit stays, and what is selected in it.
void TQELAutoCombo::MoveToTop(const std::string& text) {
  const std::string shown = Text();
  const int start = SelStart();
  const int length = SelLength();
  const TWatch watch(this);
  if (const int index = IndexOf(text); index >= 0) Items()->Delete(index);
  Items()->Insert(0, text);
  while (!watch.Gone() && Items()->Count() > FMaxItems) Items()->Delete(Items()->Count() - 1);
  if (watch.Gone() || Text() == shown) return;
  SetText(shown);
  if (!watch.Gone()) Select(start, length);
}

// The store.

std::string TQELAutoCombo::ValueName(int index) const {
  const std::string owner = Owner() ? Owner()->Name() + "." : std::string();
  return vcl::Concat(owner, Name(), "_Item", std::to_string(index));
}

/// What the store refuses is its own event's matter, not that of who was typing; false then, or
/// when the combo box has gone.
template <class Call>
bool TQELAutoCombo::Guarded(Call call) {
  const TWatch watch(this);
  try {
    call();
  } catch (const vcl::EIniFileException&) {
    if (!watch.Gone()) FHistoryStore->OnError(FHistoryStore.get());
    return false;
  } catch (const vcl::ERegistryException&) {
    if (!watch.Gone()) FHistoryStore->OnError(FHistoryStore.get());
    return false;
  }
  return !watch.Gone();
}

void TQELAutoCombo::Loaded() {
  const TWatch watch(this);
  TCustomComboBox::Loaded();
  if (!watch.Gone() && !Designing()) Guarded([&] { LoadHistory(); });
}

bool TQELAutoCombo::LoadHistory() {
  if (!FHistoryStore->Enabled()) return false;
  const vcl::TOnFailure unread([this] { FUnread = true; }, this);
  const TQELDataStore::TStrictReading strict(*FHistoryStore, this);
  vcl::TStringList values;
  const TWatch watch(this);
  FHistoryStore->ReadStrs(values);
  if (watch.Gone()) return false;
  FUnread = false;
  vcl::TStringList stored;
  for (int at = values.IndexOfName(ValueName(0)); at >= 0;
       at = values.IndexOfName(ValueName(stored.Count()))) {
    const std::string line = values.Strings(at);
    stored.Add(line.substr(line.find('=') + 1));
  }
  for (int i = stored.Count() - 1; !watch.Gone() && i >= 0; --i) MoveToTop(stored.Strings(i));
  return !watch.Gone();
}

void TQELAutoCombo::SaveHistory() {
  if (!FHistoryStore->Enabled()) return;
  const int count = Items()->Count();
  for (int i = 0; i < count; ++i) FHistoryStore->WriteStr(ValueName(i), Items()->Strings(i));
  // What a longer list has left there.
  vcl::TStringList values;
  FHistoryStore->ReadStrs(values);
  for (int i = count; values.IndexOfName(ValueName(i)) >= 0; ++i) {
    FHistoryStore->DeleteKey(ValueName(i));
  }
}

void TQELAutoCombo::ClearHistory() {
  const TWatch watch(this);
  Items()->Clear();
  if (watch.Gone()) return;
  FUnread = false;
  SaveHistory();
}

}  // namespace qel
