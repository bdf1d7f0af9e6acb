// A form designer that keeps what it is told, for tests of editors.
#pragma once

#include <map>
#include <string>
#include <typeindex>
#include <vector>

#include "vcl/designintf/designer.h"
#include "vcl/forms/forms.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"

class TPlainDesigner : public vcl::TDesigner {
 public:
  void Modified() override { ++Modifications; }
  vcl::TComponent& Root() const override { return const_cast<vcl::TForm&>(Form); }
  std::string UniqueName(const std::string& className) const override {
    return className.substr(1) + "1";
  }
  std::string NameProblem(const vcl::TComponent&, const std::string& name) const override {
    return name.empty() ? "nameless" : "";
  }
  std::vector<std::string> MethodNames(const vcl::TPropInfo& event) const override {
    std::vector<std::string> names;
    for (const auto& [name, signature] : Methods) {
      if (signature == std::type_index(*event.Signature)) names.push_back(name);
    }
    return names;
  }
  bool MethodExists(const std::string& name) const override { return Methods.contains(name); }
  void CreateMethod(const std::string& name, const vcl::TPropInfo& event) override {
    if (!Methods.emplace(name, *event.Signature).second) throw vcl::EComponentError(name);
  }
  void RenameMethod(const std::string& name, const std::string& newName) override {
    auto node = Methods.extract(name);
    node.key() = newName;
    Methods.insert(std::move(node));
  }
  void ShowMethod(const std::string& name) override { Shown = name; }
  std::vector<std::string> ComponentNames(const vcl::TClass& aClass) const override {
    std::vector<std::string> names;
    for (int i = 0; i < Form.ComponentCount(); ++i) {
      if (Form.Components(i)->InheritsFrom(aClass)) names.push_back(Form.Components(i)->Name());
    }
    return names;
  }
  vcl::TComponent* FindComponent(const std::string& name) const override {
    return Form.FindComponent(name);
  }
  std::string NameOf(const vcl::TComponent& component) const override { return component.Name(); }
  std::vector<vcl::TPersistent*> Selection() const override { return Selected; }
  void SetSelection(const std::vector<vcl::TPersistent*>& selection) override {
    Selected = selection;
  }
  bool ShowNonVisual() const override { return NonVisualShown; }
  void SetShowNonVisual(bool show) override { NonVisualShown = show; }
  void ShowCollection(vcl::TPersistent&, vcl::TCollection&, const std::string& property) override {
    Shown = property;
  }

  vcl::TForm Form{nullptr};
  int Modifications = 0;
  std::map<std::string, std::type_index> Methods;
  std::string Shown;
  std::vector<vcl::TPersistent*> Selected;
  bool NonVisualShown = true;
};
