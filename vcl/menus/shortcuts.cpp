// Shortcuts as texts.
#include <array>
#include <string>

#include "vcl/menus/menus.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

constexpr unsigned KeyMask = 0x00FF;

constexpr struct {
  TShortCut Flag;
  TShiftStateValue State;
  std::string_view Text;
} Modifiers[] = {
    {scCtrl, ssCtrl, "Ctrl+"},
    {scShift, ssShift, "Shift+"},
    {scAlt, ssAlt, "Alt+"},
};

constexpr struct {
  unsigned Key;
  std::string_view Name;
} NamedKeys[] = {
    {VK_BACK, "BkSp"},   {VK_TAB, "Tab"},        {VK_RETURN, "Enter"},  {VK_ESCAPE, "Esc"},
    {VK_SPACE, "Space"}, {VK_PRIOR, "PgUp"},     {VK_NEXT, "PgDn"},     {VK_END, "End"},
    {VK_HOME, "Home"},   {VK_LEFT, "Left"},      {VK_UP, "Up"},         {VK_RIGHT, "Right"},
    {VK_DOWN, "Down"},   {VK_INSERT, "Ins"},     {VK_DELETE, "Del"},    {VK_MULTIPLY, "Num *"},
    {VK_ADD, "Num +"},   {VK_SUBTRACT, "Num -"}, {VK_DECIMAL, "Num ."}, {VK_DIVIDE, "Num /"},
    {VK_PAUSE, "Pause"}, {VK_CANCEL, "Break"},
};

// Keys whose names count on.
constexpr struct {
  unsigned First;
  unsigned Count;
  std::string_view Prefix;
  unsigned FirstNumber;
} NumberedKeys[] = {
    {VK_F1, 24, "F", 1},
    {VK_NUMPAD0, 10, "Num ", 0},
};

std::string KeyName(unsigned key) {
  for (const auto& [code, name] : NamedKeys) {
    if (code == key) return std::string(name);
  }
  for (const auto& [first, count, prefix, number] : NumberedKeys) {
    if (key >= first && key < first + count) {
      return Concat(prefix, std::to_string(key - first + number));
    }
  }
  // Letters, digits and the signs of the user's keyboard: the character that the key gives alone.
  const UINT character = ::MapVirtualKeyW(key, MAPVK_VK_TO_CHAR) & KeyMask;
  const bool visible = character > ' ' && character < 0x7F;
  return visible ? std::string(1, static_cast<char>(character)) : std::string();
}

const std::array<std::string, KeyMask + 1>& KeyNames() {
  static const auto names = [] {
    std::array<std::string, KeyMask + 1> all;
    for (unsigned key = 1; key <= KeyMask; ++key) all[key] = KeyName(key);
    return all;
  }();
  return names;
}

// The modifier at the text's beginning, which is taken off; scNone when there is none.
TShortCut TakeModifier(std::string_view& text) {
  for (const auto& [flag, state, prefix] : Modifiers) {
    if (SameText(text.substr(0, prefix.size()), prefix)) {
      text.remove_prefix(prefix.size());
      return flag;
    }
  }
  return scNone;
}

}  // namespace

TShortCut ShortCut(std::uint16_t key, TShiftState shift) {
  if (key > KeyMask) return scNone;
  TShortCut result = static_cast<TShortCut>(key);
  for (const auto& [flag, state, text] : Modifiers) {
    if (shift.Has(state)) result = result | flag;
  }
  return result;
}

std::string ShortCutToText(TShortCut shortCut) {
  const std::string& name = KeyNames()[shortCut & KeyMask];
  if (name.empty()) return {};
  std::string text;
  for (const auto& [flag, state, prefix] : Modifiers) {
    if (shortCut & flag) text += prefix;
  }
  return text + name;
}

TShortCut TextToShortCut(std::string_view text) {
  TShortCut result = scNone;
  text = Trim(text);
  while (const TShortCut modifier = TakeModifier(text)) result = result | modifier;
  const auto& names = KeyNames();
  for (unsigned key = 1; !text.empty() && key <= KeyMask; ++key) {
    if (SameText(names[key], text)) return result | static_cast<TShortCut>(key);
  }
  return scNone;
}

}  // namespace vcl
