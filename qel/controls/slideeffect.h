// The names of the effects with which one slide follows another.
#pragma once

#include "vcl/rtl/typeinfo.h"

namespace qel {

/// How a slide takes the place of the one before.
enum TQELSlideEffect {
  seNone,
  seFade,
  seWipeLeft,  ///< The new one is uncovered towards the left.
  seWipeRight,
  seWipeUp,
  seWipeDown,
  sePushLeft,  ///< The new one pushes the old one out to the left.
  sePushRight,
  seBlinds,
  seChecker,
  seDissolve,
  seBox
};

}  // namespace qel

namespace vcl {

template <>
inline constexpr TEnumText EnumText<qel::TQELSlideEffect>{
    "TQELSlideEffect",
    "seNone seFade seWipeLeft seWipeRight seWipeUp seWipeDown sePushLeft sePushRight seBlinds "
    "seChecker seDissolve seBox"};

}  // namespace vcl
