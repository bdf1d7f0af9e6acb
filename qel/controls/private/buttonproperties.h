// What buttons and the like publish behind their own properties.
#pragma once

namespace qel {

/// Of controls without a window.
inline constexpr const char* ControlProperties[] = {"Enabled",   "DragCursor", "DragMode",
                                                    "Font",      "ParentFont", "ParentShowHint",
                                                    "PopupMenu", "ShowHint",   "Visible"};
/// Of those with one.
inline constexpr const char* ButtonProperties[] = {
    "Enabled",   "DragCursor", "DragMode", "Font",    "ParentFont", "ParentShowHint",
    "PopupMenu", "ShowHint",   "TabOrder", "TabStop", "Visible"};

}  // namespace qel
