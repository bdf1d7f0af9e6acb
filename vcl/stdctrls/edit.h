// TCustomEdit and TEdit: text that the user edits, in one line.
#pragma once

#include <string>

#include "vcl/controls/wincontrol.h"
#include "vcl/stdctrls/texteditor.h"

namespace vcl {

enum TEditCharCase { ecNormal, ecUpperCase, ecLowerCase };
template <>
inline constexpr TEnumText EnumText<TEditCharCase>{"TEditCharCase",
                                                   "ecNormal ecUpperCase ecLowerCase"};

/// An edit. Positions and lengths in its text count characters as the system's windows do: UTF-16
/// units, that is 1 for each character of the basic plane and 2 for others; an end of line is 2.
class VCL_API TCustomEdit : public TWinControl, public TTextEditor {
 public:
  explicit TCustomEdit(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;

  bool AutoSelect() const { return FAutoSelect; }
  /// True: all text is selected when the focus comes by keyboard or by code.
  void SetAutoSelect(bool autoSelect) { FAutoSelect = autoSelect; }
  bool AutoSize() const { return FAutoSize; }
  /// True: the height follows the font.
  void SetAutoSize(bool autoSize);
  /// bsSingle for a border, bsNone for none.
  TBorderStyle BorderStyle() const { return FBorderStyle; }
  /// Takes bsNone and bsSingle; raises EArgumentOutOfRangeException for the others.
  void SetBorderStyle(TBorderStyle style);
  TEditCharCase CharCase() const { return FCharCase; }
  /// Whether what is typed becomes capital or small letters.
  void SetCharCase(TEditCharCase charCase);
  bool HideSelection() const { return FHideSelection; }
  /// True: the selection is seen only while the edit has the focus.
  void SetHideSelection(bool hide);
  int MaxLength() const { return FMaxLength; }
  /// The most that can be typed; 0 for no limit. Text set by code may be longer. Raises
  /// EArgumentOutOfRangeException for a negative length.
  void SetMaxLength(int maxLength);
  char32_t PasswordChar() const { return FPasswordChar; }
  /// Shown in place of every character; 0 for none. Raises EArgumentOutOfRangeException for a
  /// character beyond the basic plane, which the system's edit cannot show.
  void SetPasswordChar(char32_t character);
  bool ReadOnly() const { return FReadOnly; }
  /// True: the user cannot change the text.
  void SetReadOnly(bool readOnly);
  /// True when what the user does may change the text.
  bool CanModify() const override { return !FReadOnly; }

  /// True when the user has changed the text since it was set.
  bool Modified() const;
  void SetModified(bool modified);
  /// The selection; while there is no window, what the window will get. Positions beyond the text
  /// are taken as its end, negative ones as 0.
  int SelStart() const;
  void SetSelStart(int start);
  int SelLength() const override;
  void SetSelLength(int length);
  std::string SelText() const;
  /// Replaces what is selected, which can be undone.
  void SetSelText(const std::string& text);
  bool Editing() const override { return Focused(); }
  bool HasText() const override { return GetTextLen() > 0; }
  void SelectAll() override;
  void Clear() { SetText({}); }
  void ClearSelection();
  void DeleteSelection() override;
  void CopyToClipboard() override;
  void CutToClipboard() override;
  void PasteFromClipboard() override;
  bool CanUndo() const override;
  void Undo() override;
  void ClearUndo();

  /// The text has changed, by the user or by code.
  TNotifyEvent OnChange;

 protected:
  /// Fires OnChange.
  virtual void Change();
  virtual bool MultiLine() const { return false; }
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void Dispatch(TMessage& message) override;
  void Loaded() override;

 private:
  struct TRange {
    int Start = 0;
    int End = 0;
  };
  TRange Selection() const;
  void Select(TRange range);
  void AdjustHeight();
  void CommandFromWindow(TMessage& message);
  void Entered();

  bool FAutoSelect = true;
  bool FAutoSize = true;
  bool FHideSelection = true;
  bool FReadOnly = false;
  bool FModified = false;
  TBorderStyle FBorderStyle = bsSingle;
  TEditCharCase FCharCase = ecNormal;
  int FMaxLength = 0;
  char32_t FPasswordChar = 0;
  TRange FSelection;  // While there is no window.
};

/// An edit for forms, of one line.
class VCL_API TEdit : public TCustomEdit {
 public:
  explicit TEdit(TComponent* owner) : TCustomEdit(owner) { HearOnlyAsked<TEdit>(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
