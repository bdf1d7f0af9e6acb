// TDBComboBox, TDBListBox and TDBRadioGroup: a field whose value is chosen from a list of texts.
#pragma once

#include <memory>
#include <string>

#include "vcl/dbctrls/fieldcontrol.h"
#include "vcl/stdctrls/combobox.h"
#include "vcl/stdctrls/listbox.h"
#include "vcl/stdctrls/radiogroup.h"

namespace vcl {

/// A combo box: the field's text can be chosen and, with an edit, typed.
class VCL_API TDBComboBox : public TFieldEditor<TCustomComboBox> {
 public:
  explicit TDBComboBox(TComponent* owner) : TFieldEditor(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  bool CanModify() const override { return MayEditField() && TFieldEditor::CanModify(); }

 protected:
  void ShowField() override;
  void WriteField() override;
  void PutBack() override;
  void Change() override;
  void Click() override;
  void KeyDown(std::uint16_t& key, TShiftState shift) override;
  void KeyPress(char32_t& key) override;
  void Loaded() override;

 private:
  bool FRefused = false;  // A choice from the list, which Change is told of, too.
};

/// A list box: the item that is the field's text is selected.
class VCL_API TDBListBox : public TFieldEditor<TCustomListBox> {
 public:
  explicit TDBListBox(TComponent* owner) : TFieldEditor(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  void ShowField() override;
  void WriteField() override;
  void Click() override;
  void CreateWnd() override;
  void Loaded() override;
};

/// A group of radio buttons, each for a value of the field.
class VCL_API TDBRadioGroup : public TFieldEditor<TCustomRadioGroup> {
 public:
  explicit TDBRadioGroup(TComponent* owner);
  ~TDBRadioGroup() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TStrings* Values() const { return FValues.get(); }
  /// The field's value for each item; an item without one has its own text.
  void SetValues(const TStrings* values) { FValues->Assign(values); }

 protected:
  void ShowField() override;
  void WriteField() override;
  void KeepFocus() override;
  void Click() override;
  void CreateWnd() override;
  void Loaded() override;

 private:
  std::string ValueOf(int item) const;
  void HearKeys();
  void ButtonKey(TObject* sender, char32_t& key);

  std::unique_ptr<TStringList> FValues;
};

}  // namespace vcl
