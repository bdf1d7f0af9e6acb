// The actions of the children of a main form of the style fsMDIForm.
#pragma once

#include "vcl/forms/forms.h"
#include "vcl/stdactions/standardaction.h"

namespace vcl {

/// The base of the actions of children: their target is the main form of the style fsMDIForm. They
/// are disabled while it has no children.
class VCL_API TWindowAction : public TStandardAction {
 public:
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  bool HandlesTarget(const TComponent& target) const override;
  void UpdateTarget(TComponent* target) override;
  void ExecuteTarget(TComponent& target) override;

 protected:
  using TStandardAction::TStandardAction;
  TComponent* FixedTarget() const override;
  virtual void Do(TCustomForm& form) = 0;
};

/// Closes the child in front.
class VCL_API TWindowClose : public TWindowAction {
 public:
  explicit TWindowClose(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  void Do(TCustomForm& form) override;
};

/// Lays the children one behind the other.
class VCL_API TWindowCascade : public TWindowAction {
 public:
  explicit TWindowCascade(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  void Do(TCustomForm& form) override;
};

/// Lays the children above each other.
class VCL_API TWindowTileHorizontal : public TWindowAction {
 public:
  explicit TWindowTileHorizontal(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  void Do(TCustomForm& form) override;
};

/// Lays the children side by side.
class VCL_API TWindowTileVertical : public TWindowAction {
 public:
  explicit TWindowTileVertical(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  void Do(TCustomForm& form) override;
};

/// Arranges the minimised children.
class VCL_API TWindowArrange : public TWindowAction {
 public:
  explicit TWindowArrange(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  void Do(TCustomForm& form) override;
};

/// Minimises all children.
class VCL_API TWindowMinimizeAll : public TWindowAction {
 public:
  explicit TWindowMinimizeAll(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

 protected:
  void Do(TCustomForm& form) override;
};

}  // namespace vcl
