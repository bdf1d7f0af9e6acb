// TQELTimeTrigger: its times, and looking which of them have come.
#include "qel/services/Qelttimetrigger.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "qel/services/private/localtimes.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"

namespace qel {

namespace {

constexpr TMilliseconds Longest = 1000;  // Between two looks, as clocks are set without a word.
constexpr TMilliseconds Patience = MinuteLength;  // What is later than that was missed.
constexpr TMilliseconds PutBack = 180 * MinuteLength;
constexpr TQELTriggerDays AllDays = TQELTriggerDays::FromBits(0x7F);

}  // namespace

// The times.

const vcl::TClass& TQELTrigger::Class() {
  using T = TQELTrigger;
  using namespace vcl;
  static const TClass info = Describe<T, TCollectionItem>(
      "qel::TQELTrigger", "qel/services/Qelttimetrigger.h",
      {
          Property<&T::Active, &T::SetActive>("Active").Default(true),
          Property<&T::Date, &T::SetDate>("Date").Type("TDate").Default(0.0),
          Property<&T::Days, &T::SetDays>("Days").Default(AllDays),
          Property<&T::Every, &T::SetEvery>("Every").Default(0),
          Property<&T::Time, &T::SetTime>("Time").Type("TTime").Default(0.0),
      });
  return info;
}

TQELTrigger::TQELTrigger(vcl::TCollection* collection)
    : TCollectionItem(collection), FDays(AllDays), FSince(SystemInstant()) {}

void TQELTrigger::Assign(const vcl::TPersistent* source) {
  const auto* trigger = dynamic_cast<const TQELTrigger*>(source);
  if (!trigger) return TCollectionItem::Assign(source);
  FActive = trigger->FActive;
  FDate = trigger->FDate;
  FDays = trigger->FDays;
  FEvery = trigger->FEvery;
  FTime = trigger->FTime;
  Restart();
}

std::string TQELTrigger::DisplayName() const { return vcl::TimeToStr(FTime); }

void TQELTrigger::Restart() {
  FSince = SystemInstant();
  Changed(false);
}

void TQELTrigger::SetActive(bool active) {
  FActive = active;
  Restart();
}

void TQELTrigger::SetDate(vcl::TDateTime date) {
  if (!vcl::IsValidDateTime(date)) return;
  FDate = std::floor(date);
  Restart();
}

void TQELTrigger::SetDays(TQELTriggerDays days) {
  FDays = days;
  Restart();
}

void TQELTrigger::SetEvery(int minutes) {
  if (minutes < 0 || minutes >= vcl::MinsPerDay) return;
  FEvery = minutes;
  Restart();
}

void TQELTrigger::SetTime(vcl::TDateTime time) {
  if (!(time >= 0 && time < 1)) return;
  FTime = time;
  Restart();
}

// A fraction of a day is no whole number of milliseconds: what is next to a second is that second.
TTimeRule TQELTrigger::Rule() const {
  TTimeRule rule;
  const auto seconds = static_cast<TMilliseconds>(std::round(FTime * vcl::SecsPerDay));
  rule.Time = std::min(seconds, TMilliseconds{vcl::SecsPerDay - 1}) * 1000;
  rule.Days = FDays.Bits();
  if (FDate != 0) rule.Date = static_cast<int>(FDate);
  rule.Every = FEvery;
  return rule;
}

const vcl::TClass& TQELTriggers::Class() {
  static const vcl::TClass info = vcl::Describe<TQELTriggers, TCollection>(
      "qel::TQELTriggers", "qel/services/Qelttimetrigger.h", {});
  return info;
}

TQELTriggers::TQELTriggers() : TCollection(TQELTrigger::Class()) {}

TQELTrigger* TQELTriggers::Add() { return static_cast<TQELTrigger*>(TCollection::Add()); }

TQELTrigger* TQELTriggers::Triggers(int index) const {
  return static_cast<TQELTrigger*>(Items(index));
}

// The component.

const vcl::TClass& TQELTimeTrigger::Class() {
  using T = TQELTimeTrigger;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELTimeTrigger", "qel/services/Qelttimetrigger.h",
      {
          Property<&T::FireMissed, &T::SetFireMissed>("FireMissed").Default(false),
          Event<&T::OnTrigger>("OnTrigger"),
          Property<&T::Triggers, &T::SetTriggers>("Triggers"),
      });
  return info;
}

TQELTimeTrigger::TQELTimeTrigger(vcl::TComponent* owner)
    : TQELComponent(owner),
      FTriggers(std::make_unique<TQELTriggers>()),
      FTimer(std::make_unique<vcl::TTimer>(nullptr)) {
  FTimer->OnTimer = [this](vcl::TObject*) { Tick(); };
  FTriggers->OnUpdate = [this](vcl::TCollectionItem*) { Schedule(); };
  FTimer->SetEnabled(false);
}

TQELTimeTrigger::~TQELTimeTrigger() {
  AnnounceEnd();
  FTriggers->OnUpdate = nullptr;
}

// What of today is over has been missed; whether that is fired, the look itself decides.
void TQELTimeTrigger::Loaded() {
  TQELComponent::Loaded();
  const TZone zone = SystemZone();
  const TMilliseconds now = SystemInstant();
  const TMilliseconds midnight = InstantOf(zone, DayOf(now + zone(now)) * DayLength);
  for (int i = 0; i < FTriggers->Count(); ++i) {
    FTriggers->Triggers(i)->FSince = FFireMissed ? midnight - 1 : now;
  }
  Schedule();
}

namespace {

/// The earliest instant behind `after` of an active time.
std::optional<TMilliseconds> Earliest(const std::vector<TTimeRule>& rules, const TZone& zone,
                                      TMilliseconds after) {
  std::optional<TMilliseconds> earliest;
  for (const TTimeRule& rule : rules) {
    const auto next = NextInstant(rule, zone, after);
    if (next && (!earliest || *next < *earliest)) earliest = next;
  }
  return earliest;
}

}  // namespace

std::vector<TTimeRule> TQELTimeTrigger::Rules() const {
  std::vector<TTimeRule> rules;
  for (int i = 0; i < FTriggers->Count(); ++i) {
    const TQELTrigger& trigger = *FTriggers->Triggers(i);
    if (trigger.FActive) rules.push_back(trigger.Rule());
  }
  return rules;
}

vcl::TDateTime TQELTimeTrigger::NextTime() const {
  const TZone zone = SystemZone();
  const auto next = Earliest(Rules(), zone, SystemInstant());
  if (!next) return 0;
  return static_cast<vcl::TDateTime>(*next + zone(*next)) / DayLength;
}

/// Looks again when the next time comes, but soon enough to see that the clock has been set.
void TQELTimeTrigger::Schedule() {
  const bool runs = !Designing() && !Loading() && FTriggers->Count() > 0;
  if (runs) {
    const TMilliseconds now = SystemInstant();
    const auto next = Earliest(Rules(), SystemZone(), now);
    const TMilliseconds wait = next ? std::min(*next - now, Longest) : Longest;
    FTimer->SetInterval(static_cast<std::uint32_t>(std::max<TMilliseconds>(wait, 1)));
  }
  FTimer->SetEnabled(runs);
}

/// Whether the time has come since the last look, which this one is from now on.
bool TQELTimeTrigger::Due(TQELTrigger& trigger, const TZone& zone, TMilliseconds now) const {
  const TMilliseconds since = trigger.FSince;
  if (now >= since || since - now > PutBack) trigger.FSince = now;
  if (now < since || !trigger.FActive) return false;
  // Without FireMissed, what came before is not looked for.
  const TMilliseconds from = FFireMissed ? since : std::max(since, now - Patience);
  const auto next = NextInstant(trigger.Rule(), zone, from);
  return next && *next <= now;
}

void TQELTimeTrigger::Tick() {
  const vcl::TWatch watch(this);
  const TZone zone = SystemZone();
  const TMilliseconds now = SystemInstant();
  std::vector<int> due;
  for (int i = 0; i < FTriggers->Count(); ++i) {
    TQELTrigger& trigger = *FTriggers->Triggers(i);
    if (Due(trigger, zone, now)) due.push_back(trigger.ID());
  }
  for (const int id : due) {
    Fire(id);
    if (watch.Gone()) return;
  }
  Schedule();
}

/// What the handler raises keeps no other time from being told.
void TQELTimeTrigger::Fire(int id) {
  const vcl::TWatch watch(this);
  auto* const trigger = static_cast<TQELTrigger*>(FTriggers->FindItemID(id));
  if (!trigger || !trigger->FActive) return;
  try {
    OnTrigger(this, trigger);
  } catch (...) {
    vcl::BaseApplication().HandleTimerException(watch.Gone() ? nullptr : this);
  }
}

}  // namespace qel
