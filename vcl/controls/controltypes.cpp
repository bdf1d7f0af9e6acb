// The names of cursors and modal results, and the state of keys from the system's messages.
#include "vcl/controls/controltypes.h"

#include <span>

#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"

namespace vcl {

namespace {

struct TIdent {
  std::int64_t Value;
  const char* Name;
};

constexpr TIdent Cursors[] = {
    {crDefault, "crDefault"},   {crNone, "crNone"},           {crArrow, "crArrow"},
    {crCross, "crCross"},       {crIBeam, "crIBeam"},         {crSize, "crSize"},
    {crSizeNESW, "crSizeNESW"}, {crSizeNS, "crSizeNS"},       {crSizeNWSE, "crSizeNWSE"},
    {crSizeWE, "crSizeWE"},     {crUpArrow, "crUpArrow"},     {crHourGlass, "crHourGlass"},
    {crDrag, "crDrag"},         {crNoDrop, "crNoDrop"},       {crHSplit, "crHSplit"},
    {crVSplit, "crVSplit"},     {crMultiDrag, "crMultiDrag"}, {crNo, "crNo"},
    {crAppStart, "crAppStart"}, {crHelp, "crHelp"},           {crHandPoint, "crHandPoint"},
};

constexpr TIdent ModalResults[] = {
    {mrNone, "mrNone"},   {mrOk, "mrOk"},       {mrCancel, "mrCancel"},
    {mrAbort, "mrAbort"}, {mrRetry, "mrRetry"}, {mrIgnore, "mrIgnore"},
    {mrYes, "mrYes"},     {mrNo, "mrNo"},       {mrAll, "mrAll"},
};

std::optional<std::string> NameOf(std::span<const TIdent> idents, std::int64_t value) {
  for (const TIdent& ident : idents) {
    if (ident.Value == value) return ident.Name;
  }
  return std::nullopt;
}

std::optional<std::int64_t> ValueOf(std::span<const TIdent> idents, std::string_view name) {
  for (const TIdent& ident : idents) {
    if (SameText(ident.Name, name)) return ident.Value;
  }
  return std::nullopt;
}

void NamesOf(std::span<const TIdent> idents, const std::function<void(const std::string&)>& each) {
  for (const TIdent& ident : idents) each(ident.Name);
}

bool KeyDown(int key) { return GetKeyState(key) < 0; }

}  // namespace

std::optional<std::string> CursorToIdent(std::int64_t cursor) { return NameOf(Cursors, cursor); }

std::optional<std::int64_t> IdentToCursor(std::string_view ident) {
  return ValueOf(Cursors, ident);
}

void GetCursorValues(const std::function<void(const std::string&)>& each) {
  NamesOf(Cursors, each);
}

std::optional<std::string> ModalResultToIdent(std::int64_t result) {
  return NameOf(ModalResults, result);
}

std::optional<std::int64_t> IdentToModalResult(std::string_view ident) {
  return ValueOf(ModalResults, ident);
}

void GetModalResultValues(const std::function<void(const std::string&)>& each) {
  NamesOf(ModalResults, each);
}

TShiftState KeysToShiftState(WPARAM keys) {
  static constexpr struct {
    WPARAM Flag;
    TShiftStateValue State;
  } flags[] = {
      {MK_SHIFT, ssShift},   {MK_CONTROL, ssCtrl},   {MK_LBUTTON, ssLeft},
      {MK_RBUTTON, ssRight}, {MK_MBUTTON, ssMiddle},
  };
  TShiftState state;
  for (const auto& [flag, value] : flags) {
    if (keys & flag) state.Include(value);
  }
  // Mouse messages say nothing of Alt.
  if (KeyDown(VK_MENU)) state.Include(ssAlt);
  return state;
}

TShiftState KeyDataToShiftState(LPARAM keyData) {
  constexpr LPARAM altDown = 0x20000000;
  TShiftState state;
  if (KeyDown(VK_SHIFT)) state.Include(ssShift);
  if (KeyDown(VK_CONTROL)) state.Include(ssCtrl);
  if (keyData & altDown) state.Include(ssAlt);
  return state;
}

}  // namespace vcl
