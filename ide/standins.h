// What stands on a form for components whose class is missing or could not be made. Their
// properties are kept as the form file has them (vcl/rtl/keptdata.h).
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "vcl/controls/wincontrol.h"

namespace ide {

/// Stands for a control: a hatched rectangle with the class's name.
class TStandInControl : public vcl::TCustomControl {
 public:
  explicit TStandInControl(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

 protected:
  void Paint() override;
};

/// Stands for a component that is no control.
class TStandInComponent : public vcl::TComponent {
 public:
  using TComponent::TComponent;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }
};

/// True when the component stands in for another.
bool IsStandIn(const vcl::TComponent& component);

/// Keeps what a reader can't use, in stand-ins and beside what could be used.
class TFormKeeper : public vcl::TReaderKeeper {
 public:
  void Report(const std::string& message) override;
  vcl::TComponent* MakeStandIn(vcl::TComponent* owner, bool visual) override;
  /// A frame as the file of its class in the folder has it; null for a class that is registered.
  vcl::TComponent* MakeFrame(const std::string& className, vcl::TComponent* owner) override;
  vcl::TComponent* FindForm(std::string_view name) const override;
  /// The frame as nothing but its own file makes it; null when that is gone.
  std::unique_ptr<vcl::TComponent> Pristine(const vcl::TComponent& frame) const;

  /// Where the form files of frames are; empty before the form has a file.
  std::string Folder;

  std::function<void(const std::string& message)> OnProblem;
  /// The other forms that are open.
  std::function<std::vector<vcl::TComponent*>()> Others;

 private:
  int FDepth = 0;  // How many frames are being made inside each other.
};

}  // namespace ide
