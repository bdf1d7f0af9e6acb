// Saving the open forms at intervals that the user chooses.
#include "qel/design/autosave.h"

#include <algorithm>
#include <iterator>

#include "qel/design/toollist.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace qel {
namespace {

constexpr int Choices[] = {0, 1, 2, 5, 10, 30};

std::string Caption(int minutes) {
  if (minutes == 0) return "Never";
  return minutes == 1 ? "Every minute" : vcl::Concat("Every ", vcl::IntToStr(minutes), " minutes");
}

}  // namespace

TQELAutoSave::TQELAutoSave(vcl::TEnvironment& environment) {
  FTimer.OnTimer = [files = &environment](vcl::TObject*) { files->SaveFiles(); };
  SetMinutes(0);
}

void TQELAutoSave::SetMinutes(int minutes) {
  constexpr std::uint32_t minute = 60'000;  // Milliseconds.
  FMinutes = std::clamp(minutes, 0, *std::prev(std::end(Choices)));
  FTimer.SetInterval(static_cast<std::uint32_t>(FMinutes) * minute);
}

bool TQELAutoSave::Choose() {
  bool chosen = false;
  TQELToolList list{"Auto Save Files", {}, [](int index) {
                      return Choices[index] == 0
                                 ? "Forms are saved when you save them."
                                 : "The open forms that have a file and were changed are saved.";
                    }};
  for (const int each : Choices) list.Lines.push_back(Caption(each));
  list.Chosen = static_cast<int>(std::ranges::lower_bound(Choices, FMinutes) - Choices);
  list.Action = "&Choose";
  list.Act = [&](int index) {
    SetMinutes(Choices[index]);
    chosen = true;
  };
  ShowToolList(list);
  return chosen;
}

}  // namespace qel
