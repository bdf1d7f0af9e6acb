// TComponentEditor: what a form designer does with a component that is double-clicked, and the
// commands of its menu.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/designintf/designer.h"

namespace vcl {

/// Base of the editors. One is made for a component when its menu comes up or it is double-clicked.
class VCL_API TComponentEditor {
 public:
  TComponentEditor(TDesigner& designer, TComponent& component)
      : FDesigner(designer), FComponent(component) {}
  TComponentEditor(const TComponentEditor&) = delete;
  TComponentEditor& operator=(const TComponentEditor&) = delete;
  virtual ~TComponentEditor();

  /// The component has been double-clicked. Here: executes the first verb, if there is one.
  virtual void Edit();
  /// The commands at the top of the component's menu, from 0. Here: none. Indexes outside raise
  /// EListError.
  virtual int GetVerbCount() const { return 0; }
  virtual std::string GetVerb(int index) const;
  virtual void ExecuteVerb(int index);
  /// The component is being copied to the clipboard: puts there, beside it, what else it has.
  virtual void Copy() {}

  TDesigner& Designer() const { return FDesigner; }
  TComponent& Component() const { return FComponent; }

 private:
  TDesigner& FDesigner;
  TComponent& FComponent;
};

/// The editor of components without one of their own: a double click creates or shows the handler
/// of the default event, which is OnCreate, OnChange or OnClick, whichever comes first in this
/// order, else the component's first event.
class VCL_API TDefaultEditor : public TComponentEditor {
 public:
  using TComponentEditor::TComponentEditor;
  void Edit() override;
};

/// How editors of a class are made, and what the class is called.
struct TComponentEditorClass {
  std::string_view Name;
  std::unique_ptr<TComponentEditor> (*Make)(TDesigner& designer, TComponent& component);
};

/// The editor class T, whose constructor is TComponentEditor's. The name must outlive the module.
template <class T>
constexpr TComponentEditorClass ComponentEditorClass(std::string_view name) {
  return {name,
          [](TDesigner& designer, TComponent& component) -> std::unique_ptr<TComponentEditor> {
            return std::make_unique<T>(designer, component);
          }};
}

/// One call of RegisterComponentEditor.
struct TComponentEditorEntry {
  TComponentEditorClass Editor;
  const TClass* Class;
};

/// Gives an editor to the components of the class and its descendants. The entry for the nearest
/// class counts, of equals the newest.
VCL_API void RegisterComponentEditor(const TClass& aClass, const TComponentEditorClass& editor);
/// The calls so far, in order.
VCL_API const std::vector<TComponentEditorEntry>& RegisteredComponentEditors();
/// The editor of the component: a registered one, or a TDefaultEditor.
VCL_API std::unique_ptr<TComponentEditor> MakeComponentEditor(TDesigner& designer,
                                                              TComponent& component);

}  // namespace vcl
