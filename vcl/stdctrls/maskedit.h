// TCustomMaskEdit and TMaskEdit: an edit whose text follows a mask.
#pragma once

#include <string>

#include "vcl/rtl/masktext.h"
#include "vcl/stdctrls/edit.h"

namespace vcl {

/// An edit in which what is typed goes into the cells of a mask (TMaskText). Without one it is an
/// edit like others. When the focus leaves with a text that the user has changed and that lacks
/// what the mask requires, EMaskError is raised and the focus stays; Escape takes back what he has
/// changed.
class VCL_API TCustomMaskEdit : public TCustomEdit {
 public:
  explicit TCustomMaskEdit(TComponent* owner) : TCustomEdit(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  const std::string& EditMask() const { return FEditMask; }
  /// The mask, in TMaskText's language; empty for none. The text is put into the new one as far as
  /// it fits. Raises EMaskError for a malformed mask, and then the old one stays.
  void SetEditMask(const std::string& mask);
  bool IsMasked() const { return !FMask.Empty(); }
  /// The text that the cells mean: without the literals when the mask leaves them out.
  std::string Text() const;
  /// The text, with or without the mask's literals; what fits no cell is left out.
  void SetText(const std::string& text);
  /// The text as it is seen, with literals and empty cells.
  std::string EditText() const { return TCustomEdit::Text(); }
  /// As SetText.
  void SetEditText(const std::string& text) { SetText(text); }
  /// Puts the caret where a required character is missing and raises EMaskError, with the text;
  /// does nothing when none is.
  void ValidateEdit();
  /// Takes back what the user has changed since the focus came.
  virtual void Reset();

  void SetTextBuf(const char* text) override;

 protected:
  /// Asked before the user changes a text with a mask; false leaves it as it is.
  virtual bool EditCanModify() { return CanModify(); }
  void Change() override;
  void CreateWnd() override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void DoEnter() override;
  void DoExit() override;
  void Dispatch(TMessage& message) override;

 private:
  using TEdited = TMaskText::TEdited;
  TEdited Shown() const { return ToCells(EditText()); }
  bool Altered() const { return IsMasked() && EditText() != FEntered; }
  void Apply(const TEdited& edited, int caret);
  void ClearCells(int from, int to);
  void ClearSelected() { ClearCells(SelStart(), SelStart() + SelLength()); }
  void Backspace();
  void TypeOver(const TEdited& characters);
  bool MoveCaret(std::uint16_t key);
  bool TakeCommand(UINT message);
  TEdited Mended(const TEdited& shown, int& caret) const;

  std::string FEditMask;
  TMaskText FMask;
  TEdited FCells;        // What is in the cells.
  std::string FEntered;  // The text when the focus came.
  bool FApplying = false;
  bool FStays = false;  // The focus comes back, as the text was not complete.
};

/// An edit with a mask, for forms.
class VCL_API TMaskEdit : public TCustomMaskEdit {
 public:
  explicit TMaskEdit(TComponent* owner) : TCustomMaskEdit(owner) { HearOnlyAsked<TMaskEdit>(); }
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
