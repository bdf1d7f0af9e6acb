// The package's editors of components.
#pragma once

#include "vcl/designintf/componenteditor.h"

namespace qel {

/// A component that performs an action: a double click performs it.
class TQELDialogEditor : public vcl::TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  void Edit() override;
  int GetVerbCount() const override;
  std::string GetVerb(int index) const override;
  void ExecuteVerb(int index) override;

 private:
  void ShowCredit();
};

/// A component with mails: a double click edits them, as the editor of its Messages does.
class TQELMailConfigEditor : public vcl::TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  void Edit() override;
  int GetVerbCount() const override { return 1; }
  std::string GetVerb(int index) const override;
  void ExecuteVerb(int index) override;
};

}  // namespace qel
