// The enumerations that several components share, and what belongs to them.
#pragma once

#include <cstdint>

#include "vcl/rtl/typeinfo.h"

namespace qel {

/// When a form's opening and closing effect runs.
enum TQELShowType { onAlways, onShow, onHide };

/// The point from which a form grows, or into which it shrinks.
enum TQELWipeType {
  wsFormTopBorder,
  wsFormBottomBorder,
  wsFormLeftBorder,
  wsFormRightBorder,
  wsScreenTopBorder,
  wsScreenBottomBorder,
  wsScreenLeftBorder,
  wsScreenRightBorder,
  wsFormTopLeft,
  wsFormBottomLeft,
  wsFormTopRight,
  wsFormBottomRight,
  wsScreenTopLeft,
  wsScreenBottomLeft,
  wsScreenTopRight,
  wsScreenBottomRight,
  wsFormMiddle,
  wsScreenMiddle,
  wsCustompoint
};

enum TQELFade { FadeIn, FadeOut };

/// Where a hint stands, seen from what it points at. Handlers choose it and may give any number.
enum TQELDirectionB : int { dUpRight, dUpLeft, dDownRight, dDownLeft };

/// What a label that launches its own caption makes of it: a mail address, a web, FTP or file
/// address, or an event of its own.
enum TQELCommand { runNothing, runMAIL, runURL, runFTP, runFILE, runEVENT };

enum TQELButtonType { btNormal, btInset };

/// The state of a button with a top and a bottom half.
enum TQELButtonState { bsUp, bsTopDown, bsBottomDown, bsDisabled };

enum TQELKind { kVertical, kHorizontal };

/// The system's sounds.
enum TQELBeeptype { bNone, bDefault, bAsterix, bExclamation, bQuestion, bCriticalStop };

enum TQELAction { appRestoreAndExit, appRestore, appExit, appNone };

enum TQELFaxorMail { ccMail, ccFax };

/// The side on which one thing stands beside another.
enum TQELPosition { pLeft, pRight, pTop, pBottom };

/// How three-dimensional text is lit.
enum TQELStyle3D {
  fontRaised,         ///< A highlight above and a shadow below.
  fontInset,          ///< The other way round.
  fontOnlyShadow,     ///< Only the shadow below.
  fontOnlyHighlight,  ///< Only the highlight above.
  fontOutLineShadow   ///< An outline in the colour of the shadow.
};

/// To which side copies of a text trail from it.
enum TQELRepeat { repeatOnShadow, repeatOnHighLight, repeatNone };

/// A frame's borders, outer one first.
enum TQELFrameStyle {
  frameSolid,
  frameRaised,
  frameLowered,
  frameNone,
  frameFramedUp,
  frameFramedDown,
  framePanelUp,
  framePanelDown,
  frameLightBordered
};

/// The number of images in a glyph's strip, from 0 to 4.
enum TQELNumGlyphs : std::uint8_t {};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELShowType>{"TQELShowType", "onAlways onShow onHide"};
template <>
inline constexpr TEnumText EnumText<qel::TQELWipeType>{
    "TQELWipeType",
    "wsFormTopBorder wsFormBottomBorder wsFormLeftBorder wsFormRightBorder wsScreenTopBorder "
    "wsScreenBottomBorder wsScreenLeftBorder wsScreenRightBorder wsFormTopLeft wsFormBottomLeft "
    "wsFormTopRight wsFormBottomRight wsScreenTopLeft wsScreenBottomLeft wsScreenTopRight "
    "wsScreenBottomRight wsFormMiddle wsScreenMiddle wsCustompoint"};
template <>
inline constexpr TEnumText EnumText<qel::TQELFade>{"TQELFade", "FadeIn FadeOut"};
template <>
inline constexpr TEnumText EnumText<qel::TQELDirectionB>{"TQELDirectionB",
                                                         "dUpRight dUpLeft dDownRight dDownLeft"};
template <>
inline constexpr TEnumText EnumText<qel::TQELCommand>{
    "TQELCommand", "runNothing runMAIL runURL runFTP runFILE runEVENT"};
template <>
inline constexpr TEnumText EnumText<qel::TQELButtonType>{"TQELButtonType", "btNormal btInset"};
template <>
inline constexpr TEnumText EnumText<qel::TQELButtonState>{"TQELButtonState",
                                                          "bsUp bsTopDown bsBottomDown bsDisabled"};
template <>
inline constexpr TEnumText EnumText<qel::TQELKind>{"TQELKind", "kVertical kHorizontal"};
template <>
inline constexpr TEnumText EnumText<qel::TQELBeeptype>{
    "TQELBeeptype", "bNone bDefault bAsterix bExclamation bQuestion bCriticalStop"};
template <>
inline constexpr TEnumText EnumText<qel::TQELAction>{
    "TQELAction", "appRestoreAndExit appRestore appExit appNone"};
template <>
inline constexpr TEnumText EnumText<qel::TQELFaxorMail>{"TQELFaxorMail", "ccMail ccFax"};
template <>
inline constexpr TEnumText EnumText<qel::TQELPosition>{"TQELPosition", "pLeft pRight pTop pBottom"};
template <>
inline constexpr TEnumText EnumText<qel::TQELStyle3D>{
    "TQELStyle3D", "fontRaised fontInset fontOnlyShadow fontOnlyHighlight fontOutLineShadow"};
template <>
inline constexpr TEnumText EnumText<qel::TQELRepeat>{"TQELRepeat",
                                                     "repeatOnShadow repeatOnHighLight repeatNone"};
template <>
inline constexpr TEnumText EnumText<qel::TQELFrameStyle>{
    "TQELFrameStyle",
    "frameSolid frameRaised frameLowered frameNone frameFramedUp frameFramedDown framePanelUp "
    "framePanelDown frameLightBordered"};

}  // namespace vcl
