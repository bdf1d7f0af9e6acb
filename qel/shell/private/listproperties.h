// What the room's combo boxes and list boxes publish beside their own properties.
#pragma once

namespace qel {

/// For `Inherit` in their tables, like the next.
inline constexpr const char* ComboProperties[] = {"Align",
                                                  "Anchors",
                                                  "Color",
                                                  "Ctl3D",
                                                  "DragCursor",
                                                  "DragMode",
                                                  "DropDownCount",
                                                  "Enabled",
                                                  "Font",
                                                  "ParentColor",
                                                  "ParentCtl3D",
                                                  "ParentFont",
                                                  "ParentShowHint",
                                                  "PopupMenu",
                                                  "ShowHint",
                                                  "TabOrder",
                                                  "TabStop",
                                                  "Visible",
                                                  "OnClick",
                                                  "OnCloseUp",
                                                  "OnDragDrop",
                                                  "OnDragOver",
                                                  "OnDropDown",
                                                  "OnEndDrag",
                                                  "OnEnter",
                                                  "OnExit",
                                                  "OnKeyDown",
                                                  "OnKeyPress",
                                                  "OnKeyUp",
                                                  "OnMouseWheel",
                                                  "OnMouseWheelDown",
                                                  "OnMouseWheelUp",
                                                  "OnStartDrag"};
inline constexpr const char* ListBoxProperties[] = {
    "Align",        "Anchors",          "BorderStyle",    "Color",
    "Ctl3D",        "DragCursor",       "DragMode",       "Enabled",
    "Font",         "IntegralHeight",   "ParentColor",    "ParentCtl3D",
    "ParentFont",   "ParentShowHint",   "PopupMenu",      "ShowHint",
    "TabOrder",     "TabStop",          "Visible",        "OnClick",
    "OnDblClick",   "OnDragDrop",       "OnDragOver",     "OnEndDrag",
    "OnEnter",      "OnExit",           "OnKeyDown",      "OnKeyPress",
    "OnKeyUp",      "OnMouseDown",      "OnMouseMove",    "OnMouseUp",
    "OnMouseWheel", "OnMouseWheelDown", "OnMouseWheelUp", "OnStartDrag"};

}  // namespace qel
