// THotKey: a field that takes a combination of keys.
#pragma once

#include "vcl/controls/wincontrol.h"
#include "vcl/menus/menus.h"

namespace vcl {

/// Keys that are held down with another.
enum THotKeyModifier { hkShift, hkCtrl, hkAlt, hkExt };
using THotKeyModifiers = TSet<THotKeyModifier>;
template <>
inline constexpr TEnumText EnumText<THotKeyModifier>{
    "THotKeyModifier", "hkShift hkCtrl hkAlt hkExt", "THotKeyModifiers"};
/// Combinations by what is held down.
enum THotKeyInvalidKey {
  hcNone,
  hcShift,
  hcCtrl,
  hcAlt,
  hcShiftCtrl,
  hcShiftAlt,
  hcCtrlAlt,
  hcShiftCtrlAlt
};
using THotKeyInvalidKeys = TSet<THotKeyInvalidKey>;
template <>
inline constexpr TEnumText EnumText<THotKeyInvalidKey>{
    "THotKeyInvalidKey",
    "hcNone hcShift hcCtrl hcAlt hcShiftCtrl hcShiftAlt hcCtrlAlt hcShiftCtrlAlt",
    "THotKeyInvalidKeys"};

/// The user presses a combination of keys in it, whose name it shows.
class VCL_API THotKey : public TWinControl {
 public:
  explicit THotKey(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  TShortCut HotKey() const { return FHotKey; }
  /// The combination; scNone for none.
  void SetHotKey(TShortCut hotKey);
  THotKeyInvalidKeys InvalidKeys() const { return FInvalidKeys; }
  /// The combinations that are not taken: Modifiers go in the place of what is held down.
  void SetInvalidKeys(THotKeyInvalidKeys keys);
  THotKeyModifiers Modifiers() const { return FModifiers; }
  /// What is held down instead where InvalidKeys refuses a combination.
  void SetModifiers(THotKeyModifiers modifiers);

  /// The user has pressed another combination.
  TNotifyEvent OnChange;

 protected:
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void Dispatch(TMessage& message) override;

 private:
  void SendRules();
  void SendHotKey();

  TShortCut FHotKey = static_cast<TShortCut>(scAlt | static_cast<TShortCut>('A'));
  THotKeyInvalidKeys FInvalidKeys{hcNone, hcShift};
  THotKeyModifiers FModifiers{hkAlt};
};

}  // namespace vcl
