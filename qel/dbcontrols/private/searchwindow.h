// The window of a TQELDBSearchForm.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "qel/dbcontrols/Qeltdbsearchform.h"
#include "qel/dialogs/private/dialogform.h"
#include "vcl/stdctrls/checkbox.h"
#include "vcl/stdctrls/combobox.h"
#include "vcl/stdctrls/edit.h"
#include "vcl/stdctrls/label.h"

namespace qel {

/// What is set in it the component has at once; it may be freed while a search goes on.
class TQELDBSearchForm::TWindow : public TDialogForm {
 public:
  explicit TWindow(TQELDBSearchForm& search);
  ~TWindow() override;
  /// Lists the fields that there are now, and enables what can be done.
  void FieldsChanged();
  /// Shows how far a search has come, and lets the user do something; false when he has stopped it.
  bool Progress(int records);
  bool CloseQuery() override;

 protected:
  void DoClose(vcl::TCloseAction& action) override;

 private:
  bool Alive() const { return Dialog() != nullptr; }
  void AddInput();
  void AddOptions();
  void AddButtons();
  vcl::TLabel* AddLabel(const std::string& caption);
  void AddAct(const TQELButtonDetails& details, int result, std::function<void()> act);
  void Act(const std::function<void()>& act);
  void FieldChosen();
  void OptionChosen();
  void Say(const std::string& text, const std::string& value);
  void Search(bool next);
  void UpdateButtons();
  void Enable(int result, bool can);
  void SetEnter(int result);

  TQELDBSearchForm& FSearch;
  vcl::TEdit* FText = nullptr;
  vcl::TComboBox* FField = nullptr;
  std::vector<std::string> FNames;  // Of the entries; empty for all fields.
  std::vector<std::pair<TQELDBSearchOption, vcl::TCheckBox*>> FBoxes;
  vcl::TLabel* FSaid = nullptr;
  bool FBusy = false;
  bool FStop = false;
};

}  // namespace qel
