// TQELQueryAccess: its table, the dialog, and what is kept of right and wrong codes.
#include "qel/dialogs/Qeltqueryaccess.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "qel/core/private/keptvalues.h"
#include "qel/dialogs/private/secretform.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TWatch;

namespace {

constexpr const char* StoreSection = "Access";
constexpr const char* AccessValue = "Access";
constexpr int Year = 365 * 24 * 60 * 60;  // Seconds.
constexpr int MostFailures = 1000000;
constexpr std::int64_t Second = 1000;  // Milliseconds.

/// Milliseconds of the system's clock, since 1601.
std::int64_t ClockNow() {
  FILETIME now;
  ::GetSystemTimeAsFileTime(&now);
  const auto high = static_cast<std::uint64_t>(now.dwHighDateTime) << 32;
  return static_cast<std::int64_t>((high | now.dwLowDateTime) / 10000);
}

std::int64_t LeftUntil(std::uint64_t end) {
  const std::uint64_t now = ::GetTickCount64();
  return end > now ? static_cast<std::int64_t>(end - now) : 0;
}

/// What the store keeps: the wrong codes, the milliseconds that are left of lock and grant, and the
/// time at which it was written.
using TState = std::array<std::int64_t, 4>;

std::string TextOf(const TState& state) {
  std::string text;
  for (const std::int64_t each : state) text += std::to_string(each) + ";";
  return text;
}

std::optional<TState> StateIn(const std::string& text) {
  TState state{};
  const char* at = text.data();
  const char* const end = at + text.size();
  for (std::int64_t& each : state) {
    const auto [stop, error] = std::from_chars(at, end, each);
    if (error != std::errc() || stop == end || *stop != ';' || each < 0) return {};
    at = stop + 1;
  }
  return at == end ? std::optional(state) : std::nullopt;
}

}  // namespace

/// The dialog as it is on the screen.
class TQELQueryAccess::TShown {
 public:
  explicit TShown(TQELQueryAccess& dialog)
      : FDialog(dialog), FForm(dialog), FEdit(FForm.AddSecret(dialog.FCodeLabel)) {}
  bool Run() {
    FForm.WaitUntil(FDialog.FLockEnd, FDialog.FLockText);
    return FForm.Run(FEdit, [this] { Attempt(); });
  }

 private:
  void Attempt() {
    const TWatch watch(&FDialog);
    TQELSecret typed;
    FEdit->Read(typed);
    const bool right = QELCodeMatches(typed.Text(), FDialog.FCode);
    right ? FDialog.Grant() : FDialog.CountFailure();
    if (watch.Gone() || FForm.Closing()) return;
    if (right) return FForm.Accept();
    FForm.Refuse(FDialog.FWrongText, FEdit);
    FForm.WaitUntil(FDialog.FLockEnd, FDialog.FLockText);
  }

  TQELQueryAccess& FDialog;
  TSecretForm FForm;
  TSecretEdit* FEdit;
};

const vcl::TClass& TQELQueryAccess::Class() {
  using T = TQELQueryAccess;
  using namespace vcl;
  static const TClass info = Describe<T, TQELSecretDialog>(
      "qel::TQELQueryAccess", "qel/dialogs/Qeltqueryaccess.h",
      {
          ReadOnly<&T::AccessStore>("AccessStore"),
          Property<&T::Code, &T::SetCode>("Code").Default(""),
          Property<&T::CodeLabel, &T::SetCodeLabel>("CodeLabel").Default("&Code:"),
          Property<&T::LockAfter, &T::SetLockAfter>("LockAfter").Default(5),
          Property<&T::LockText, &T::SetLockText>("LockText").Default("Locked for %d s."),
          Property<&T::LockTime, &T::SetLockTime>("LockTime").Default(60),
          Property<&T::ValidFor, &T::SetValidFor>("ValidFor").Default(0),
          Property<&T::WrongText, &T::SetWrongText>("WrongText").Default("The code is wrong."),
      });
  return info;
}

TQELQueryAccess::TQELQueryAccess(vcl::TComponent* owner)
    : TQELSecretDialog(owner), FAccessStore(std::make_unique<TQELDataStore>()) {
  FAccessStore->Registry()->SetSection(StoreSection);
  FAccessStore->Inifile()->SetSection(StoreSection);
  FAccessStore->SetInitialEnabled(false);
}

TQELQueryAccess::~TQELQueryAccess() { AnnounceEnd(); }

void TQELQueryAccess::SetCode(const std::string& hash) {
  if (hash == FCode || !(hash.empty() || QELIsHashedCode(hash))) return;
  FCode = hash;
  FGrantEnd = 0;
}

/// What the code before has granted ends, in the store, too.
void TQELQueryAccess::ChangeCode(std::string_view code) {
  SetCode(QELHashedCode(code));
  Revoke();
}

void TQELQueryAccess::SetValidFor(int seconds) {
  if (seconds >= 0 && seconds <= Year) FValidFor = seconds;
}

void TQELQueryAccess::SetLockAfter(int failures) {
  if (failures >= 0) FLockAfter = failures;
}

void TQELQueryAccess::SetLockTime(int seconds) {
  if (seconds >= 0 && seconds <= Year) FLockTime = seconds;
}

bool TQELQueryAccess::Execute() {
  SetLastError(FCode.empty() ? "There is no code" : "");
  if (FCode.empty()) return false;
  const TWatch watch(this);
  ReadState();
  if (watch.Gone()) return false;
  if (LeftUntil(FGrantEnd) > 0) return true;
  TQELSecretDialog::Execute();
  TShown shown(*this);
  const bool agreed = shown.Run();
  if (watch.Gone() || agreed) return agreed;
  if (const int seconds = LockedFor()) {
    SetLastError(vcl::Concat("Locked for ", std::to_string(seconds), " s"));
  }
  return false;
}

// What is known of right and wrong codes.

TKeptValues TQELQueryAccess::Kept() { return {*FAccessStore, *this}; }

/// A store that says less than is known already changes nothing. A clock that is behind the time at
/// which the store was written says nothing about how long ago that was: the lock is left as it was
/// then, and the time is counted from here on.
void TQELQueryAccess::ReadState() {
  const TWatch watch(this);
  const std::optional<TState> state = StateIn(Kept().Read(AccessValue));
  if (watch.Gone() || !state) return;
  const auto& [failures, lock, grant, written] = *state;
  const std::int64_t passed = ClockNow() - written;
  TakeState(failures, lock, passed < 0 ? 0 : grant, std::max<std::int64_t>(passed, 0));
  if (passed < 0) WriteState();
}

void TQELQueryAccess::TakeState(std::int64_t failures, std::int64_t lock, std::int64_t grant,
                                std::int64_t passed) {
  const auto endOf = [&](std::int64_t left, int most) {
    left = std::min(left, most * Second) - passed;
    return left > 0 ? ::GetTickCount64() + static_cast<std::uint64_t>(left) : 0;
  };
  FFailures = std::max(FFailures, static_cast<int>(std::min<std::int64_t>(failures, MostFailures)));
  FLockEnd = std::max(FLockEnd, static_cast<std::uint64_t>(endOf(lock, FLockTime)));
  FGrantEnd = std::max(FGrantEnd, static_cast<std::uint64_t>(endOf(grant, FValidFor)));
}

void TQELQueryAccess::WriteState() {
  Kept().Write(AccessValue,
               TextOf({FFailures, LeftUntil(FLockEnd), LeftUntil(FGrantEnd), ClockNow()}));
}

void TQELQueryAccess::Grant() {
  FFailures = 0;
  FLockEnd = 0;
  FGrantEnd = ::GetTickCount64() + static_cast<std::uint64_t>(FValidFor * Second);
  WriteState();
}

void TQELQueryAccess::CountFailure() {
  FFailures = std::min(FFailures + 1, MostFailures);
  if (FLockAfter > 0 && FFailures >= FLockAfter) {
    FFailures = 0;
    FLockEnd = ::GetTickCount64() + static_cast<std::uint64_t>(FLockTime * Second);
  }
  WriteState();
}

void TQELQueryAccess::Revoke() {
  const TWatch watch(this);
  ReadState();
  if (watch.Gone()) return;
  FGrantEnd = 0;
  WriteState();
}

int TQELQueryAccess::LockedFor() {
  const TWatch watch(this);
  ReadState();
  if (watch.Gone()) return 0;
  return static_cast<int>((LeftUntil(FLockEnd) + Second - 1) / Second);
}

}  // namespace qel
