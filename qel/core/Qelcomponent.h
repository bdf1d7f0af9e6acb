// The base classes of the components without a window, and TQELAbout, which every component
// carries.
#pragma once

#include <memory>
#include <string>

#include "qel/core/Qelenumerations.h"
#include "qel/core/api.h"
#include "vcl/rtl/component.h"

namespace qel {

/// What a component says about the package: the form designer shows it as the property About.
class QEL_API TQELAbout : public vcl::TPersistent {
 public:
  /// `owner` is the component that carries it.
  explicit TQELAbout(vcl::TComponent* owner = nullptr) : FOwner(owner) {}
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Shows the about box for the component and waits until it is closed.
  void Showabout() const;

 private:
  vcl::TComponent* FOwner;
};

/// Base of the components without a window.
class QEL_API TQELComponent : public vcl::TComponent {
 public:
  explicit TQELComponent(vcl::TComponent* owner);
  ~TQELComponent() override;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// What the component says about the package.
  TQELAbout* About() const { return FAbout.get(); }

 private:
  std::unique_ptr<TQELAbout> FAbout;
};

/// A component that performs one action, which the form designer can run too.
class QEL_API TQELExecComponent : public TQELComponent {
 public:
  explicit TQELExecComponent(vcl::TComponent* owner);
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Performs the action and says whether it was done. Here: does nothing and returns false.
  virtual bool Execute();
  /// "(Execute)", whatever is written to it.
  const std::string& DesignExecute() const { return FDesignExecute; }
  /// Runs Execute when the value is "(Busy...)"; any other value does nothing.
  void DoExec(const std::string& value);

 private:
  std::string FDesignExecute;
};

/// A component that shows a dialog. Descendants' Execute call the inherited one first, which plays
/// the sound, and then show theirs.
class QEL_API TQELCustomDialog : public TQELExecComponent {
 public:
  using TQELExecComponent::TQELExecComponent;
  static const vcl::TClass& Class();
  const vcl::TClass& ClassType() const override { return Class(); }

  /// Plays Sound and returns false.
  bool Execute() override;
  TQELBeeptype Sound() const { return FSound; }
  /// The system's sound that is played when the dialog is shown; bNone for none.
  void SetSound(TQELBeeptype sound) { FSound = sound; }

 private:
  TQELBeeptype FSound = bNone;
};

}  // namespace qel
