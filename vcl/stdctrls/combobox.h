// TCustomComboBox and TComboBox.
#pragma once

#include <string>

#include "vcl/stdctrls/listcontrol.h"
#include "vcl/stdctrls/texteditor.h"

namespace vcl {

enum TComboBoxStyle {
  csDropDown,          ///< An edit with a list that drops down.
  csSimple,            ///< An edit with a list below it.
  csDropDownList,      ///< The text is one of the items.
  csOwnerDrawFixed,    ///< Like csDropDownList, with the items drawn by OnDrawItem.
  csOwnerDrawVariable  ///< The same, each item in the list as high as OnMeasureItem says.
};
template <>
inline constexpr TEnumText EnumText<TComboBoxStyle>{
    "TComboBoxStyle", "csDropDown csSimple csDropDownList csOwnerDrawFixed csOwnerDrawVariable"};

/// A combo box. OnClick tells that the user has selected an item, OnChange that the text has
/// changed.
class VCL_API TCustomComboBox : public TCustomListControl, public TTextEditor {
 public:
  explicit TCustomComboBox(TComponent* owner);
  ~TCustomComboBox() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  void DoAccessibleAction() override { SetDroppedDown(!DroppedDown()); }

  TComboBoxStyle Style() const { return FStyle; }
  /// Whether there is an edit, and where the list is.
  void SetStyle(TComboBoxStyle style);
  int DropDownCount() const { return FDropDownCount; }
  /// How many items are seen at most when the list is down. Raises EArgumentOutOfRangeException for
  /// less than 1.
  void SetDropDownCount(int count);
  int MaxLength() const { return FMaxLength; }
  /// The most UTF-16 units that can be typed; 0 for no limit. Raises EArgumentOutOfRangeException
  /// for a negative length.
  void SetMaxLength(int maxLength);
  bool DroppedDown() const;
  void SetDroppedDown(bool down);
  void SetItemIndex(int index) override;
  void Clear() override;
  /// The selection in the edit; see TCustomEdit.
  int SelStart() const;
  int SelLength() const override;
  void Select(int start, int length);
  void SelectAll() override;
  /// Without an edit, the combo box is never editing, and these do nothing.
  bool Editing() const override;
  bool HasText() const override { return GetTextLen() > 0; }
  bool CanModify() const override { return HasEdit(); }
  void DeleteSelection() override;
  void CopyToClipboard() override;
  void CutToClipboard() override;
  void PasteFromClipboard() override;
  bool CanUndo() const override;
  void Undo() override;

  bool Focused() const override;
  int GetTextLen() const override;
  int GetTextBuf(char* buffer, int size) const override;
  /// Without an edit, the text selects the item that is equal to it but for case, or none.
  void SetTextBuf(const char* text) override;

  /// The text has changed.
  TNotifyEvent OnChange;
  /// The list is about to drop down.
  TNotifyEvent OnDropDown;
  /// The list has closed.
  TNotifyEvent OnCloseUp;

 protected:
  virtual void Change();
  virtual void DropDown();
  virtual void CloseUp();
  bool OwnerDraw() const override { return FStyle >= csOwnerDrawFixed; }
  bool MeasuresItems() const override { return FStyle == csOwnerDrawVariable; }
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;
  void DestroyWnd() override;
  void Dispatch(TMessage& message) override;
  void DefaultHandler(TMessage& message) override;
  void Loaded() override;

 private:
  bool HasEdit() const { return FStyle == csDropDown || FStyle == csSimple; }
  std::string ItemText() const;
  void CommandFromWindow(TMessage& message);
  void ItemChosen();
  void TellEdit(unsigned message);
  void FitField();
  void SubclassEdit();
  static LRESULT __stdcall EditProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                    UINT_PTR id, DWORD_PTR self);

  TComboBoxStyle FStyle = csDropDown;
  int FDropDownCount = 8;
  int FMaxLength = 0;
  std::string FLoadedText;  // Of a list still without its items.
  HWND FEdit = nullptr;
  /// The message to the edit that is on its way through this control.
  const TMessage* FEditMessage = nullptr;
};

/// A combo box for forms.
class VCL_API TComboBox : public TCustomComboBox {
 public:
  explicit TComboBox(TComponent* owner) : TCustomComboBox(owner) { HearOnlyAsked<TComboBox>(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
