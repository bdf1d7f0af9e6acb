// Properties and events that controls publish together, for `Inherit` in their tables.
#pragma once

namespace vcl {

inline constexpr const char* DragEvents[] = {"OnDragDrop", "OnDragOver", "OnEndDrag"};
inline constexpr const char* FocusEvents[] = {"OnEnter", "OnExit"};
inline constexpr const char* KeyEvents[] = {"OnKeyDown", "OnKeyPress", "OnKeyUp"};
inline constexpr const char* WheelEvents[] = {"OnMouseWheel", "OnMouseWheelDown", "OnMouseWheelUp"};
inline constexpr const char* MouseEvents[] = {"OnMouseDown", "OnMouseMove", "OnMouseUp"};

/// What panels, group boxes and the like publish behind their own properties.
inline constexpr const char* ContainerProperties[] = {
    "Ctl3D",       "DragCursor", "DragMode",    "Enabled",    "Font",
    "ParentColor", "Padding",    "ParentCtl3D", "ParentFont", "ParentShowHint",
    "PopupMenu",   "ShowHint",   "TabOrder",    "TabStop",    "Visible"};
/// The events of the same classes; those that take keys publish KeyEvents, too.
inline constexpr const char* ContainerEvents[] = {
    "OnClick",          "OnConstrainedResize", "OnDblClick", "OnDragDrop",
    "OnDragOver",       "OnEndDrag",           "OnEnter",    "OnExit",
    "OnMouseDown",      "OnMouseMove",         "OnMouseUp",  "OnMouseWheel",
    "OnMouseWheelDown", "OnMouseWheelUp",      "OnResize",   "OnStartDrag"};
/// What panels show: their edges, their caption, their colour.
inline constexpr const char* PanelLook[] = {
    "BevelInner", "BevelOuter", "BevelWidth", "BorderWidth", "BorderStyle", "Caption", "Color"};

}  // namespace vcl
