// What a control tells a screen reader of itself and of its parts.
#pragma once

#include <string>
#include <vector>

#include "vcl/graphics/types.h"
#include "vcl/rtl/sets.h"

namespace vcl {

/// What something is, by the numbers of the system's roles (ROLE_SYSTEM_...).
enum TAccessibleRole {
  arNone = 0,  ///< As the system's own object for the window says.
  arScrollBar = 3,
  arWindow = 9,
  arClient = 10,
  arToolTip = 13,
  arPane = 16,
  arDialog = 18,
  arGrouping = 20,
  arSeparator = 21,
  arToolBar = 22,
  arStatusBar = 23,
  arTable = 24,
  arColumnHeader = 25,
  arRow = 28,
  arCell = 29,
  arList = 33,
  arListItem = 34,
  arOutline = 35,
  arPageTab = 37,
  arPropertyPage = 38,
  arGraphic = 40,
  arStaticText = 41,
  arText = 42,
  arPushButton = 43,
  arCheckBox = 44,
  arRadioButton = 45,
  arComboBox = 46,
  arProgressBar = 48,
  arHotKeyField = 50,
  arSlider = 51,
  arSpinButton = 52,
  arPageTabList = 60,
};

/// A state, by the place of its bit in the system's states (STATE_SYSTEM_...).
enum TAccessibleStateValue {
  asDisabled = 0,
  asSelected = 1,
  asFocused = 2,
  asPressed = 3,
  asChecked = 4,
  asMixed = 5,  ///< Of three states the one between checked and not.
  asReadOnly = 6,
  asDefault = 8,  ///< The button that Enter presses.
  asExpanded = 9,
  asCollapsed = 10,
  asInvisible = 15,
  asOffscreen = 16,
  asFocusable = 20,
  asSelectable = 21,
  asProtected = 29,  ///< The value is secret: nobody is told it.
};
using TAccessibleState = TSet<TAccessibleStateValue>;

/// What is told of a control, or of a part of one.
struct TAccessibleInfo {
  TAccessibleRole Role = arNone;
  TAccessibleState State;
  std::string Name;
  std::string Value;
  std::string Description;
  /// What DoAccessibleAction does, in a word ("Press"); empty when there is nothing to do.
  std::string DefaultAction;
  std::string KeyboardShortcut;  ///< "Alt+H".
  /// The system's own object for the window tells of the items inside.
  bool SystemItems = false;
};

/// A part of a control that is no control itself, such as a row, with the parts inside it. Its
/// bounds are in the control's client rectangle.
struct TAccessiblePart : TAccessibleInfo {
  TRect Bounds;
  std::vector<TAccessiblePart> Parts;
};

/// The way to a part: its index from 0, then that of the part inside it, and so on. Empty for the
/// control itself.
using TAccessiblePath = std::vector<int>;

/// What has changed, for those who listen. acSelection is about the part that is selected now.
enum TAccessibleChange { acName, acState, acValue, acFocus, acSelection };

}  // namespace vcl
