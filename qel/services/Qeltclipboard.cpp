// TQELClipboard: its table, the clipboard, and its history.
#include "qel/services/Qeltclipboard.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <optional>

#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/transfer/clipboard.h"

namespace qel {
namespace {

constexpr int Patience = 100;  // Milliseconds.

/// Has the clipboard open while the call reads or writes it.
template <class Call>
auto WithClipboard(Call call) {
  vcl::TClipboard* const clipboard = vcl::Clipboard();
  const int former = clipboard->Patience();
  const vcl::TAtEnd back([&] { clipboard->SetPatience(former); });
  clipboard->SetPatience(Patience);
  const vcl::TClipboardTurn turn;
  return call(*clipboard);
}

/// What its owner says about histories.
bool MayBeKept(const vcl::TTransferData& data) {
  static const auto exclude =
      vcl::RegisterTransferFormat("ExcludeClipboardContentFromMonitorProcessing");
  static const auto include = vcl::RegisterTransferFormat("CanIncludeInClipboardHistory");
  if (data.HasFormat(exclude)) return false;
  const std::optional<std::string> bytes = data.Bytes(include);
  if (!bytes) return true;
  std::uint32_t may = 0;
  std::memcpy(&may, bytes->data(), std::min(bytes->size(), sizeof may));
  return may != 0;
}

/// What of it is kept. Data that is damaged is as good as none.
vcl::TDataObject CopyOf(const vcl::TTransferData& data) {
  vcl::TDataObject copy;
  const auto take = [&](vcl::TTransferFormat format) {
    if (auto bytes = data.Bytes(format)) copy.SetBytes(format, std::move(*bytes));
  };
  for (const vcl::TTransferFormat format :
       {vcl::tfText, vcl::HtmlTransferFormat(), vcl::PngTransferFormat(), vcl::tfPicture,
        vcl::tfFiles}) {
    if (data.HasFormat(format)) take(format);
  }
  return copy;
}

bool SameBytes(const vcl::TTransferData& one, const vcl::TTransferData& other) {
  const auto formats = one.Formats();
  if (formats != other.Formats()) return false;
  return std::ranges::all_of(
      formats, [&](vcl::TTransferFormat each) { return one.Bytes(each) == other.Bytes(each); });
}

}  // namespace

const vcl::TClass& TQELClipboard::Class() {
  using T = TQELClipboard;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELClipboard", "qel/services/Qeltclipboard.h",
      {
          Property<&T::Active, &T::SetActive>("Active").Default(true),
          Property<&T::HistoryCount, &T::SetHistoryCount>("HistoryCount").Default(0),
          Event<&T::OnChange>("OnChange"),
      });
  return info;
}

TQELClipboard::TQELClipboard(vcl::TComponent* owner)
    : TQELComponent(owner), FMonitor(std::make_unique<vcl::TClipboardMonitor>(nullptr)) {
  FMonitor->OnChange = [this](vcl::TObject*) { Changed(); };
}

TQELClipboard::~TQELClipboard() { AnnounceEnd(); }

std::string TQELClipboard::AsText() const {
  return WithClipboard([](vcl::TClipboard& clipboard) { return clipboard.AsText(); });
}

void TQELClipboard::SetAsText(const std::string& text) {
  WithClipboard([&](vcl::TClipboard& clipboard) { clipboard.SetAsText(text); });
}

bool TQELClipboard::AsPicture(vcl::TPicture& picture) const {
  return WithClipboard([&](vcl::TClipboard& clipboard) { return clipboard.GetPicture(picture); });
}

void TQELClipboard::SetAsPicture(const vcl::TGraphic& picture) {
  WithClipboard([&](vcl::TClipboard& clipboard) { clipboard.SetPicture(picture); });
}

std::vector<std::string> TQELClipboard::Files() const {
  return WithClipboard([](vcl::TClipboard& clipboard) { return clipboard.Files(); });
}

void TQELClipboard::SetFiles(const std::vector<std::string>& names) {
  WithClipboard([&](vcl::TClipboard& clipboard) { clipboard.SetFiles(names); });
}

std::vector<std::string> TQELClipboard::Formats() const {
  std::vector<std::string> names;
  for (const vcl::TTransferFormat each :
       WithClipboard([](vcl::TClipboard& clipboard) { return clipboard.Formats(); })) {
    names.push_back(vcl::TransferFormatName(each));
  }
  return names;
}

bool TQELClipboard::Has(const std::string& format) const {
  return std::ranges::any_of(
      Formats(), [&](const std::string& each) { return vcl::AnsiSameText(each, format); });
}

void TQELClipboard::Clear() {
  WithClipboard([](vcl::TClipboard& clipboard) { clipboard.Clear(); });
}

// The history.

const vcl::TTransferData& TQELClipboard::History(int index) const {
  if (index >= 0 && index < Kept()) return FHistory[static_cast<std::size_t>(index)];
  throw vcl::EListError(
      vcl::Concat("The clipboard's history has no content ", std::to_string(index)));
}

void TQELClipboard::Recall(int index) {
  vcl::TDataObject data;
  data.Assign(History(index));
  WithClipboard([&](vcl::TClipboard& clipboard) { clipboard.Put(data); });
}

void TQELClipboard::SetHistoryCount(int count) {
  constexpr int most = 1000;
  if (count < 0 || count > most) return;
  FHistoryCount = count;
  while (Kept() > count) FHistory.pop_back();
}

/// What is on the clipboard now, in front. What is there already moves to the front.
void TQELClipboard::Keep() {
  WithClipboard([this](vcl::TClipboard& clipboard) {
    if (!MayBeKept(clipboard)) return;
    vcl::TDataObject copy = CopyOf(clipboard);
    if (copy.Formats().empty()) return;
    std::erase_if(FHistory, [&](const vcl::TDataObject& each) { return SameBytes(each, copy); });
    FHistory.push_front(std::move(copy));
  });
  SetHistoryCount(FHistoryCount);
}

void TQELClipboard::Changed() {
  if (Designing()) return;
  try {
    if (FHistoryCount > 0) Keep();
  } catch (const vcl::EClipboardError&) {
    // Another program has it already: its change is told next.
  }
  OnChange(this);
}

}  // namespace qel
