// Events that controls publish together, for `Inherit` in their tables.
#pragma once

namespace vcl {

inline constexpr const char* DragEvents[] = {"OnDragDrop", "OnDragOver", "OnEndDrag"};
inline constexpr const char* FocusEvents[] = {"OnEnter", "OnExit"};
inline constexpr const char* KeyEvents[] = {"OnKeyDown", "OnKeyPress", "OnKeyUp"};
inline constexpr const char* WheelEvents[] = {"OnMouseWheel", "OnMouseWheelDown", "OnMouseWheelUp"};
inline constexpr const char* MouseEvents[] = {"OnMouseDown", "OnMouseMove", "OnMouseUp"};

}  // namespace vcl
