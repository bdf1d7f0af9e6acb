// The small types of controls: alignment, cursors, mouse and keyboard state, styles, and the types
// of their events.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "vcl/graphics/types.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/systemtypes.h"
#include "vcl/rtl/typeinfo.h"

namespace vcl {

class TControl;
class TDragObject;

enum TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient };
template <>
inline constexpr TEnumText EnumText<TAlign>{"TAlign",
                                            "alNone alTop alBottom alLeft alRight alClient"};

enum TAlignment { taLeftJustify, taRightJustify, taCenter };
template <>
inline constexpr TEnumText EnumText<TAlignment>{"TAlignment",
                                                "taLeftJustify taRightJustify taCenter"};

/// A mouse pointer: one of these, or a number that was given to TScreen::SetCursors.
enum TCursor : std::int16_t {
  crDefault = 0,  ///< The parent's, in the end the arrow.
  crNone = -1,
  crArrow = -2,
  crCross = -3,
  crIBeam = -4,
  crSize = -22,
  crSizeNESW = -6,
  crSizeNS = -7,
  crSizeNWSE = -8,
  crSizeWE = -9,
  crUpArrow = -10,
  crHourGlass = -11,
  crDrag = -12,
  crNoDrop = -13,
  crHSplit = -14,
  crVSplit = -15,
  crMultiDrag = -16,
  crNo = -18,
  crAppStart = -19,
  crHelp = -20,
  crHandPoint = -21,
};
VCL_API std::optional<std::string> CursorToIdent(std::int64_t cursor);
VCL_API std::optional<std::int64_t> IdentToCursor(std::string_view ident);
/// Calls `each` for every cursor that has a name.
VCL_API void GetCursorValues(const std::function<void(const std::string&)>& each);
template <>
inline constexpr TIntegerText IntegerText<TCursor>{
    "TCursor", [](std::int64_t value) { return CursorToIdent(value); },
    [](std::string_view ident) { return IdentToCursor(ident); },
    [](const std::function<void(const std::string&)>& each) { GetCursorValues(each); }};

/// A window's border: forms have all of them, other controls the first two.
enum TBorderStyle { bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin };
template <>
inline constexpr TEnumText EnumText<TBorderStyle>{
    "TFormBorderStyle", "bsNone bsSingle bsSizeable bsDialog bsToolWindow bsSizeToolWin"};

/// What a modal form answers.
enum TModalResult : std::int32_t {
  mrNone = 0,
  mrOk = 1,
  mrCancel = 2,
  mrAbort = 3,
  mrRetry = 4,
  mrIgnore = 5,
  mrYes = 6,
  mrNo = 7,
  mrAll = 8,
};
VCL_API std::optional<std::string> ModalResultToIdent(std::int64_t result);
VCL_API std::optional<std::int64_t> IdentToModalResult(std::string_view ident);
/// Calls `each` for every modal result that has a name.
VCL_API void GetModalResultValues(const std::function<void(const std::string&)>& each);
template <>
inline constexpr TIntegerText IntegerText<TModalResult>{
    "TModalResult", [](std::int64_t value) { return ModalResultToIdent(value); },
    [](std::string_view ident) { return IdentToModalResult(ident); },
    [](const std::function<void(const std::string&)>& each) { GetModalResultValues(each); }};

/// The state of a Far Eastern input method while a control has the focus: without one, closed,
/// open, as it is, or open and converting to Latin letters, Hiragana, Katakana (half-width with an
/// S), Chinese or Hangul.
enum TImeMode {
  imDisable,
  imClose,
  imOpen,
  imDontCare,
  imSAlpha,
  imAlpha,
  imHira,
  imSKata,
  imKata,
  imChinese,
  imSHanguel,
  imHanguel
};
template <>
inline constexpr TEnumText EnumText<TImeMode>{
    "TImeMode",
    "imDisable imClose imOpen imDontCare imSAlpha imAlpha imHira imSKata imKata imChinese "
    "imSHanguel imHanguel"};

enum TDragMode { dmManual, dmAutomatic };
template <>
inline constexpr TEnumText EnumText<TDragMode>{"TDragMode", "dmManual dmAutomatic"};
enum TDragState { dsDragEnter, dsDragLeave, dsDragMove };

enum TMouseButton { mbLeft, mbRight, mbMiddle };
enum TShiftStateValue { ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle, ssDouble };
using TShiftState = TSet<TShiftStateValue>;
/// The state of keys and buttons as a mouse message's WParam gives it.
VCL_API TShiftState KeysToShiftState(WPARAM keys);
/// The state of Shift, Ctrl and Alt as a keyboard message finds it.
VCL_API TShiftState KeyDataToShiftState(LPARAM keyData);

enum TControlStyleValue {
  csAcceptsControls,  ///< The designer may put other controls inside.
  csCaptureMouse,     ///< The mouse is captured while a button is down.
  csDesignInteractive,
  csClickEvents,  ///< A click of the left button is a Click.
  csFramed,
  csSetCaption,  ///< The caption follows the name while they are equal.
  csOpaque,      ///< Fills its whole rectangle; what is behind need not be painted.
  csDoubleClicks,
  csFixedWidth,
  csFixedHeight,
  csNoDesignVisible,
  csReplicatable,  ///< PaintTo works for it.
  csNoStdEvents,
  csDisplayDragImage,
  csReflector,
  csActionClient,
  csMenuEvents,
};
using TControlStyle = TSet<TControlStyleValue>;

enum TControlStateValue {
  csLButtonDown,
  csClicked,  ///< A press that may become a click.
  csPalette,
  csReadingState,  ///< Being read from a form file.
  csAlignmentNeeded,
  csFocusing,
  csCreating,  ///< The window is being made.
  csPaintCopy,
  csCustomPaint,  ///< Painted by PaintWindow rather than by the window's own procedure.
  csDestroyingHandle,
};
using TControlState = TSet<TControlStateValue>;

using TMouseEvent = TEvent<TObject*, TMouseButton, TShiftState, int, int>;
using TMouseMoveEvent = TEvent<TObject*, TShiftState, int, int>;
/// Sender, keys and buttons, the way that the wheel was turned (120 a notch, positive away from the
/// user), the position on the screen, and whether the handler has done all that is to be done.
using TMouseWheelEvent = TEvent<TObject*, TShiftState, int, TPoint, bool&>;
/// The same for each notch, whose direction the event says.
using TMouseWheelUpDownEvent = TEvent<TObject*, TShiftState, TPoint, bool&>;
/// Sender, and the limits that its size is about to be brought within, in pixels; 0 is no limit.
using TConstrainedResizeEvent = TEvent<TObject*, int&, int&, int&, int&>;
/// The handler may change the key; 0 takes it away from the control.
using TKeyEvent = TEvent<TObject*, std::uint16_t&, TShiftState>;
using TKeyPressEvent = TEvent<TObject*, char32_t&>;
/// Sender, source, position, state; the handler says whether the source may be dropped here.
using TDragOverEvent = TEvent<TObject*, TObject*, int, int, TDragState, bool&>;
/// Sender, source, position.
using TDragDropEvent = TEvent<TObject*, TObject*, int, int>;
/// The handler may put an object of its own in place of the null pointer; the drag frees it.
using TStartDragEvent = TEvent<TObject*, TDragObject*&>;
/// Sender, target (null when the drag was cancelled or refused), position.
using TEndDragEvent = TDragDropEvent;

template <>
inline constexpr TEventText EventText<TMouseEvent>{
    "TMouseEvent",
    "vcl::TObject* sender, vcl::TMouseButton button, vcl::TShiftState shift, int x, int y"};
template <>
inline constexpr TEventText EventText<TMouseMoveEvent>{
    "TMouseMoveEvent", "vcl::TObject* sender, vcl::TShiftState shift, int x, int y"};
template <>
inline constexpr TEventText EventText<TMouseWheelEvent>{
    "TMouseWheelEvent",
    "vcl::TObject* sender, vcl::TShiftState shift, int wheelDelta, vcl::TPoint mousePos, bool& "
    "handled"};
template <>
inline constexpr TEventText EventText<TMouseWheelUpDownEvent>{
    "TMouseWheelUpDownEvent",
    "vcl::TObject* sender, vcl::TShiftState shift, vcl::TPoint mousePos, bool& handled"};
template <>
inline constexpr TEventText EventText<TConstrainedResizeEvent>{
    "TConstrainedResizeEvent",
    "vcl::TObject* sender, int& minWidth, int& minHeight, int& maxWidth, int& maxHeight"};
template <>
inline constexpr TEventText EventText<TKeyEvent>{
    "TKeyEvent", "vcl::TObject* sender, std::uint16_t& key, vcl::TShiftState shift"};
template <>
inline constexpr TEventText EventText<TKeyPressEvent>{"TKeyPressEvent",
                                                      "vcl::TObject* sender, char32_t& key"};
template <>
inline constexpr TEventText EventText<TDragOverEvent>{
    "TDragOverEvent",
    "vcl::TObject* sender, vcl::TObject* source, int x, int y, vcl::TDragState state, bool& "
    "accept"};
template <>
inline constexpr TEventText EventText<TDragDropEvent>{
    "TDragDropEvent", "vcl::TObject* sender, vcl::TObject* source, int x, int y"};
template <>
inline constexpr TEventText EventText<TStartDragEvent>{
    "TStartDragEvent", "vcl::TObject* sender, vcl::TDragObject*& dragObject"};

}  // namespace vcl
