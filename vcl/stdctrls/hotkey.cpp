// THotKey: the system's field for combinations of keys.
#include "vcl/stdctrls/hotkey.h"

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {
namespace {

struct THeld {
  TShortCut Ours;
  int System;
};
constexpr THeld Held[] = {
    {scShift, HOTKEYF_SHIFT}, {scCtrl, HOTKEYF_CONTROL}, {scAlt, HOTKEYF_ALT}};

TShortCut FromSystem(int hotKey) {
  auto result = static_cast<TShortCut>(LOBYTE(hotKey));
  for (const THeld& each : Held) {
    if (HIBYTE(hotKey) & each.System) result = result | each.Ours;
  }
  return result;
}

int ToSystem(TShortCut shortCut) {
  int held = 0;
  for (const THeld& each : Held) held |= shortCut & each.Ours ? each.System : 0;
  return MAKEWORD(shortCut & 0xFF, held);
}

}  // namespace

const TClass& THotKey::Class() {
  using T = THotKey;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::THotKey", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Enabled"),
          Property<&T::HotKey, &T::SetHotKey>("HotKey"),
          Property<&T::InvalidKeys, &T::SetInvalidKeys>("InvalidKeys")
              .Default(THotKeyInvalidKeys{hcNone, hcShift}),
          Property<&T::Modifiers, &T::SetModifiers>("Modifiers").Default(THotKeyModifiers{hkAlt}),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Inherit("TabOrder"),
          Inherit("TabStop").Default(true),
          Inherit("Visible"),
          Event<&T::OnChange>("OnChange"),
          Inherit(FocusEvents),
          Inherit(MouseEvents),
      });
  return info;
}

THotKey::THotKey(TComponent* owner) : TWinControl(owner) {
  SetBounds(0, 0, 121, 19);
  SetTabStop(true);
  SetParentColor(false);
}

void THotKey::SetHotKey(TShortCut hotKey) {
  if (hotKey == FHotKey) return;
  FHotKey = hotKey;
  if (HandleAllocated()) SendHotKey();
  AccessibleChanged(acValue);
}

void THotKey::SetInvalidKeys(THotKeyInvalidKeys keys) {
  FInvalidKeys = keys;
  if (HandleAllocated()) SendRules();
}

void THotKey::SetModifiers(THotKeyModifiers modifiers) {
  FModifiers = modifiers;
  if (HandleAllocated()) SendRules();
}

void THotKey::SendHotKey() { Send(*this, HKM_SETHOTKEY, static_cast<WPARAM>(ToSystem(FHotKey))); }

/// Both sets have the system's bits.
void THotKey::SendRules() {
  Send(*this, HKM_SETRULES, FInvalidKeys.Bits(), static_cast<LPARAM>(FModifiers.Bits()));
}

void THotKey::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_HOTKEY_CLASS);
  TWinControl::CreateParams(params);
  params.SubClassOf = HOTKEY_CLASSA;
  AddSingleBorder(params);
}

void THotKey::CreateWnd() {
  TWinControl::CreateWnd();
  SendRules();
  SendHotKey();
}

void THotKey::Dispatch(TMessage& message) {
  // All keys but Tab belong to the field, also those of menus and dialogs.
  if (message.Msg == CM_WANTSPECIALKEY && message.WParam != VK_TAB) {
    message.Result = 1;
    return;
  }
  if (message.Msg != CN_COMMAND || HIWORD(message.WParam) != EN_CHANGE) {
    return TWinControl::Dispatch(message);
  }
  const TShortCut pressed = FromSystem(static_cast<int>(Send(*this, HKM_GETHOTKEY)));
  if (pressed == FHotKey) return;
  FHotKey = pressed;
  AccessibleChanged(acValue);
  OnChange(this);
}

void THotKey::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arHotKeyField;
  info.Value = ShortCutToText(FHotKey);
}

}  // namespace vcl
