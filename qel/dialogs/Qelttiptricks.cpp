// TQELTipTricks: its table, the tips, the dialog, and what is kept of both.
#include "qel/dialogs/Qelttiptricks.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <random>

#include "qel/core/private/keptvalues.h"
#include "qel/dialogs/private/dialogform.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/stdctrls/checkbox.h"
#include "vcl/stdctrls/memo.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr const char* StoreSection = "Tips";
constexpr const char* NextValue = "Next";
constexpr const char* ShowValue = "ShowAtStart";
constexpr vcl::TSize TipSize{360, 140};  // At 96 dots per inch.
enum { NextResult = 1, PreviousResult, CloseResult };

/// The texts between empty lines.
std::vector<std::string> PartsOf(const vcl::TStrings& lines) {
  std::vector<std::string> parts;
  bool open = false;
  for (int i = 0; i < lines.Count(); ++i) {
    const std::string line = lines.Strings(i);
    if (vcl::Trim(line).empty()) {
      open = false;
      continue;
    }
    if (open) {
      parts.back() += "\r\n" + line;
    } else {
      parts.push_back(line);
    }
    open = true;
  }
  return parts;
}

}  // namespace

/// The dialog as it is on the screen.
class TQELTipTricks::TShown {
 public:
  TShown(TQELTipTricks& dialog, std::vector<std::string> tips, int first)
      : FForm(dialog), FTips(std::move(tips)), FOrder(FTips.size()) {
    std::iota(FOrder.begin(), FOrder.end(), 0);
    if (dialog.FRandom) std::ranges::shuffle(FOrder, std::mt19937(std::random_device{}()));
    FAt = dialog.FRandom ? 0 : first;
    FMemo =
        FForm.AddRow<vcl::TMemo>(FForm.ScaledPixels(TipSize.cx), FForm.ScaledPixels(TipSize.cy));
    FMemo->SetReadOnly(true);
    FMemo->SetWantReturns(false);
    FMemo->SetScrollBars(vcl::ssVertical);
    FMemo->SetAccessibleName("Tip");
    if (!dialog.FCheckText.empty()) AddCheck(dialog);
    AddButtons(dialog);
    Go(0);
  }
  void Run() { FForm.Run(); }
  bool ShowAtStart(bool otherwise) const { return FCheck ? FCheck->Checked() : otherwise; }
  /// Which tip is to be the next one, in the order in which they are written.
  int Next() const { return (FOrder[static_cast<std::size_t>(FAt)] + 1) % Count(); }

 private:
  int Count() const { return static_cast<int>(FTips.size()); }
  void Go(int by) {
    FAt = (FAt + by + Count()) % Count();
    const int tip = FOrder[static_cast<std::size_t>(FAt)];
    const std::string& text = FTips[static_cast<std::size_t>(tip)];
    FMemo->SetText(text);
    FForm.SetCopiedText(text);
  }
  void AddCheck(const TQELTipTricks& dialog) {
    const vcl::TSize size = FForm.SizeOfChoice(dialog.FCheckText);
    FCheck = FForm.AddRow<vcl::TCheckBox>(size.cx, size.cy);
    FCheck->SetCaption(dialog.FCheckText);
    FCheck->SetChecked(dialog.FShowAtStart);
  }
  void AddButtons(const TQELTipTricks& dialog) {
    vcl::TBitBtn* const next = FForm.AddButton(*dialog.FNextButton, NextResult);
    if (next) FForm.SetAct(*next, [this] { Go(1); });
    vcl::TBitBtn* const previous = FForm.AddButton(*dialog.FPreviousButton, PreviousResult);
    if (previous) FForm.SetAct(*previous, [this] { Go(-1); });
    vcl::TBitBtn* const close = FForm.AddButton(*dialog.FCloseButton, CloseResult);
    if (close) close->SetCancel(true);
    vcl::TBitBtn* const first = next ? next : close;
    if (!first) return;
    first->SetDefault(true);
    if (first->Enabled()) FForm.SetActiveControl(first);
  }

  TDialogForm FForm;
  std::vector<std::string> FTips;
  std::vector<int> FOrder;
  int FAt = 0;
  vcl::TMemo* FMemo = nullptr;
  vcl::TCheckBox* FCheck = nullptr;
};

const vcl::TClass& TQELTipTricks::Class() {
  using T = TQELTipTricks;
  using namespace vcl;
  static const TClass info = Describe<T, TQELFormDialog>(
      "qel::TQELTipTricks", "qel/dialogs/Qelttiptricks.h",
      {
          Property<&T::CheckText, &T::SetCheckText>("CheckText").Default("&Show tips at start"),
          ReadOnly<&T::CloseButton>("CloseButton"),
          Property<&T::Filename, &T::SetFilename>("Filename").Default(""),
          Property<&T::Force, &T::SetForce>("Force").Default(false),
          ReadOnly<&T::NextButton>("NextButton"),
          ReadOnly<&T::PreviousButton>("PreviousButton"),
          Property<&T::Random, &T::SetRandom>("Random").Default(false),
          Property<&T::ShowAtStart, &T::SetShowAtStart>("ShowAtStart").Default(true),
          Property<&T::Tips, &T::SetTips>("Tips"),
          ReadOnly<&T::TipStore>("TipStore"),
      });
  return info;
}

TQELTipTricks::TQELTipTricks(vcl::TComponent* owner)
    : TQELFormDialog(owner),
      FTips(std::make_unique<vcl::TStringList>()),
      FTipStore(std::make_unique<TQELDataStore>()),
      FNextButton(std::make_unique<TQELButtonDetails>()),
      FPreviousButton(std::make_unique<TQELButtonDetails>()),
      FCloseButton(std::make_unique<TQELButtonDetails>()) {
  FNextButton->SetCaption("&Next tip");
  FPreviousButton->SetCaption("&Previous tip");
  FCloseButton->SetCaption("&Close");
  FTipStore->Registry()->SetSection(StoreSection);
  FTipStore->Inifile()->SetSection(StoreSection);
  FTipStore->SetInitialEnabled(false);
}

TQELTipTricks::~TQELTipTricks() { AnnounceEnd(); }

TKeptValues TQELTipTricks::Kept() { return {*FTipStore, *this}; }

/// What can't be read leaves a reason in LastError.
std::vector<std::string> TQELTipTricks::AllTips() {
  if (FFilename.empty()) return PartsOf(*FTips);
  vcl::TStringList lines;
  try {
    lines.LoadFromFile(FFilename);
  } catch (const vcl::EStreamError& error) {
    FLastError = error.what();
  }
  return PartsOf(lines);
}

void TQELTipTricks::ReadShowAtStart() {
  const TWatch watch(this);
  const std::string kept = Kept().Read(ShowValue);
  if (!watch.Gone() && !kept.empty()) FShowAtStart = kept != "0";
}

/// The tip that is kept as the next one; the first where there is none, or no such any more.
int TQELTipTricks::FirstTip(int count) {
  const std::string text = Kept().Read(NextValue);
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && number >= 0 && number < count ? number : 0;
}

bool TQELTipTricks::Execute() {
  FLastError.clear();
  const TWatch watch(this);
  ReadShowAtStart();
  if (watch.Gone() || (!FShowAtStart && !FForce)) return false;
  std::vector<std::string> tips = AllTips();
  if (tips.empty()) {
    if (FLastError.empty()) FLastError = "There are no tips";
    return false;
  }
  const int first = FirstTip(static_cast<int>(tips.size()));
  if (watch.Gone()) return false;
  TQELFormDialog::Execute();
  TShown shown(*this, std::move(tips), first);
  shown.Run();
  if (watch.Gone()) return false;
  FShowAtStart = shown.ShowAtStart(FShowAtStart);
  Kept().Write(ShowValue, FShowAtStart ? "1" : "0");
  if (!watch.Gone() && !FRandom) Kept().Write(NextValue, std::to_string(shown.Next()));
  return !watch.Gone();
}

}  // namespace qel
