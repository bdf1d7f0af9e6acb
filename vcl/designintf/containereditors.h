// The editors of controls whose parts a designer's user adds by commands: tool bars and pages, and
// those whose items stand in a collection.
#pragma once

#include "vcl/designintf/componenteditor.h"

namespace vcl {

/// Of tool bars and their buttons: new ones, behind the selected one.
class VCL_API TToolBarEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
  int GetVerbCount() const override { return 2; }
  std::string GetVerb(int index) const override;
  void ExecuteVerb(int index) override;
};

/// Of page controls and their pages: a new page, the next and the previous one, and the active
/// one's deletion.
class VCL_API TPageControlEditor : public TDefaultEditor {
 public:
  using TDefaultEditor::TDefaultEditor;
  int GetVerbCount() const override { return 4; }
  std::string GetVerb(int index) const override;
  void ExecuteVerb(int index) override;
};

/// Of controls with a collection that makes what they are: shows its items.
class VCL_API TItemsEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  int GetVerbCount() const override { return 1; }
  std::string GetVerb(int index) const override;
  void ExecuteVerb(int index) override;
};

/// Gives the class library's own controls these editors.
VCL_API void RegisterContainerEditors();

}  // namespace vcl
