// TDBMemo: the value of a field, edited in many lines.
#pragma once

#include "vcl/dbctrls/fieldcontrol.h"
#include "vcl/stdctrls/memo.h"

namespace vcl {

/// Shows a long text of the current record, which is edited as in all controls that edit a field;
/// Enter begins a line. Without AutoDisplay it shows the field's name in parentheses until the user
/// asks for the text, by Enter or a double click.
class VCL_API TDBMemo : public TFieldTextEditor<TCustomMemo> {
 public:
  explicit TDBMemo(TComponent* owner) : TFieldTextEditor(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  bool AutoDisplay() const { return FAutoDisplay; }
  /// False: the text is shown when the user asks for it, which spares the time for long ones.
  void SetAutoDisplay(bool autoDisplay);
  /// Shows the text of the current record.
  void LoadMemo();
  bool CanModify() const override { return FLoaded && TFieldTextEditor::CanModify(); }

 protected:
  bool KeepsEnter() const override { return WantReturns(); }
  void AllowTyping() override;
  void ShowField() override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void DblClick() override;
  void Dispatch(TMessage& message) override;

 private:
  bool FAutoDisplay = true;
  bool FLoaded = true;
};

}  // namespace vcl
