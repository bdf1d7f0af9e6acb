// What the settings objects that controls own have in common.
#pragma once

#include <memory>

#include "vcl/rtl/object.h"

namespace qel {

/// Has the owner of a settings object painted again, if it is a control.
void InvalidateOwner(vcl::TObject* owner);

/// The dots per inch that the owner of a settings object is shown at: 96 where it is no control.
int PixelsPerInchOf(const vcl::TObject* owner);
/// A measure at 96 dots per inch in others. What would be beyond an integer is the last one.
int ScaledTo(int pixelsPerInch, int pixels);

/// Puts settings in the place of those that a control has, which are freed, and has it painted
/// again. Settings that another control owns are copied instead, as they end with it. Null is
/// refused as TPersistent::Assign does.
template <class Settings>
void TakeOver(std::unique_ptr<Settings>& field, Settings* settings, vcl::TObject* owner) {
  if (settings == field.get()) return;
  const bool ofAnother = settings && settings->Owner() && settings->Owner() != owner;
  if (!settings || ofAnother) return field->Assign(settings);
  settings->SetOwner(owner);
  field.reset(settings);
  InvalidateOwner(owner);
}

/// Keeps a value in a setter; true when it is another than before.
template <class T>
bool Store(T& field, const T& value) {
  if (field == value) return false;
  field = value;
  return true;
}

/// Marks the time during which an object changes something of its own and hears of it itself.
class TQuietly {
 public:
  explicit TQuietly(bool& flag) : FFlag(flag) { FFlag = true; }
  ~TQuietly() { FFlag = false; }
  TQuietly(const TQuietly&) = delete;
  TQuietly& operator=(const TQuietly&) = delete;

 private:
  bool& FFlag;
};

}  // namespace qel
