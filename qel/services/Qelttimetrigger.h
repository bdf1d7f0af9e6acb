// TQELTimeTrigger: an event at times of day; TQELTriggers and TQELTrigger, the times.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "qel/core/Qelcomponent.h"
#include "vcl/rtl/collection.h"
#include "vcl/rtl/datetime.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/sets.h"
#include "vcl/stdctrls/timer.h"

namespace qel {

class TQELTimeTrigger;
struct TTimeRule;

/// A day of the week.
enum TQELTriggerDay {
  tdSunday,
  tdMonday,
  tdTuesday,
  tdWednesday,
  tdThursday,
  tdFriday,
  tdSaturday
};
using TQELTriggerDays = vcl::TSet<TQELTriggerDay>;

/// A time at which a time trigger fires. By the clock on the wall: a time that is skipped when that
/// is put forward is the moment of the change, one that comes twice is the first of the two.
class QEL_API TQELTrigger : public vcl::TCollectionItem {
 public:
  explicit TQELTrigger(vcl::TCollection* collection);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
  void Assign(const vcl::TPersistent* source) override;
  std::string DisplayName() const override;

  bool Active() const { return FActive; }
  /// False: this time does not fire.
  void SetActive(bool active);
  vcl::TDateTime Date() const { return FDate; }
  /// The only day on which it fires, whatever Days says; 0 for each of Days. Of a date with a time
  /// of day, the date is taken; what is no date is not taken.
  void SetDate(vcl::TDateTime date);
  TQELTriggerDays Days() const { return FDays; }
  /// The days of the week on which it fires.
  void SetDays(TQELTriggerDays days);
  int Every() const { return FEvery; }
  /// Fires again each so many minutes, until the day is over; 0 for once. Takes numbers from 0 to
  /// 1439.
  void SetEvery(int minutes);
  vcl::TDateTime Time() const { return FTime; }
  /// The time of day, to the second, from 0 to less than 1; nothing else is taken.
  void SetTime(vcl::TDateTime time);

 private:
  friend class TQELTimeTrigger;
  TTimeRule Rule() const;
  void Restart();

  bool FActive = true;
  vcl::TDateTime FDate = 0;
  TQELTriggerDays FDays;
  int FEvery = 0;
  vcl::TDateTime FTime = 0;
  std::int64_t FSince = 0;  // The instant up to which has been looked.
};

/// The times of a time trigger.
class QEL_API TQELTriggers : public vcl::TCollection {
 public:
  TQELTriggers();
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  TQELTrigger* Add();
  /// Raises EListError outside 0 to Count - 1.
  TQELTrigger* Triggers(int index) const;
};

/// Sender, the time that has come.
using TQELTriggerEvent = vcl::TEvent<vcl::TObject*, TQELTrigger*>;

/// Fires an event at times of day. It keeps to the clock on the wall: what daylight saving, another
/// time zone or another time set does to that holds at once, and a clock that is put back by less
/// than three hours fires nothing twice. In the designer nothing is fired.
///
/// A time that comes while the program sleeps, or is busy for more than a minute, is missed; so is
/// one of today from before the form is read.
class QEL_API TQELTimeTrigger : public TQELComponent {
 public:
  explicit TQELTimeTrigger(vcl::TComponent* owner);
  ~TQELTimeTrigger() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// When the next of the times comes, by the clock on the wall; 0 when none will.
  vcl::TDateTime NextTime() const;

  bool FireMissed() const { return FFireMissed; }
  /// Fires for a time that was missed, as soon as can be, and once however often it was missed.
  void SetFireMissed(bool fireMissed) { FFireMissed = fireMissed; }
  TQELTriggers* Triggers() const { return FTriggers.get(); }
  /// The times at which it fires. One that is added or changed at run time misses nothing from
  /// before.
  void SetTriggers(const TQELTriggers* triggers) { FTriggers->Assign(triggers); }

  /// A time has come. The handler may change or free what it likes.
  TQELTriggerEvent OnTrigger;

 protected:
  void Loaded() override;

 private:
  std::vector<TTimeRule> Rules() const;
  bool Due(TQELTrigger& trigger, const std::function<std::int64_t(std::int64_t)>& zone,
           std::int64_t now) const;
  void Schedule();
  void Tick();
  void Fire(int id);

  bool FFireMissed = false;
  std::unique_ptr<TQELTriggers> FTriggers;
  std::unique_ptr<vcl::TTimer> FTimer;
};

}  // namespace qel

template <>
inline constexpr vcl::TEnumText vcl::EnumText<qel::TQELTriggerDay>{
    "TQELTriggerDay", "tdSunday tdMonday tdTuesday tdWednesday tdThursday tdFriday tdSaturday",
    "TQELTriggerDays"};
template <>
inline constexpr vcl::TEventText vcl::EventText<qel::TQELTriggerEvent>{
    "TQELTriggerEvent", "vcl::TObject* sender, qel::TQELTrigger* item"};
