// TScreen: the screen's size, the forms of the program, and the mouse pointer.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "vcl/controls/controltypes.h"
#include "vcl/graphics/handles.h"
#include "vcl/graphics/types.h"
#include "vcl/rtl/component.h"

namespace vcl {

class TControl;
class TCustomForm;
class TWinControl;

/// The screen: its sizes, the forms and controls on it, and its pointers.
class VCL_API TScreen : public TComponent {
 public:
  explicit TScreen(TComponent* owner);
  ~TScreen() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// The primary monitor's size in pixels.
  int Width() const;
  int Height() const;
  /// The part of the primary monitor that is not the taskbar's.
  TRect WorkAreaRect() const;
  /// The part of the monitor nearest to the point that is not the taskbar's.
  TRect WorkAreaRect(TPoint nearest) const;
  /// The same of the monitor that shows most of the rectangle, or is nearest to it.
  TRect WorkAreaRect(const TRect& nearest) const;
  int PixelsPerInch() const;

  int FormCount() const { return static_cast<int>(FForms.size()); }
  /// The form at the index from 0, in order of making. Raises EListError outside.
  TCustomForm* Forms(int index) const;
  TCustomForm* ActiveForm() const { return FActiveForm; }
  TWinControl* ActiveControl() const { return FActiveControl; }
  /// The topmost visible control of the program at the position on the screen, in a window of its
  /// own or not; null when there is none. Disabled ones count only when `allowDisabled`.
  TControl* ControlAt(TPoint position, bool allowDisabled) const;

  /// The pointer shown over all of the program's windows; crDefault: each control's own.
  TCursor Cursor() const { return FCursor; }
  void SetCursor(TCursor cursor);
  /// The system's handle for a pointer.
  HCURSOR Cursors(TCursor cursor) const;
  /// Makes a pointer known under a number of the application's own (above 0), or replaces one.
  /// The screen takes the handle over. Raises EArgumentOutOfRangeException for other numbers.
  void SetCursors(TCursor cursor, HCURSOR handle);

  TNotifyEvent OnActiveFormChange, OnActiveControlChange;

 private:
  friend class TCustomForm;
  friend class TApplication;
  bool HasForm(const TCustomForm* form) const;
  void AddForm(TCustomForm* form) { FForms.push_back(form); }
  void RemoveForm(TCustomForm* form);
  void SetActive(TCustomForm* form, TWinControl* control);

  std::vector<TCustomForm*> FForms;
  TCustomForm* FActiveForm = nullptr;
  TWinControl* FActiveControl = nullptr;
  TCursor FCursor = crDefault;
  mutable std::map<int, TOwnedCursor> FCursors;
};

/// The program's screen; made at the first call. It lives as long as the process.
VCL_API TScreen* Screen();

}  // namespace vcl
