// TStage: the window in which the root of a form file is designed.
#pragma once

#include <memory>

#include "vcl/forms/designerhook.h"
#include "vcl/forms/forms.h"

namespace ide {

/// A form is its own window. A frame fills the inside of one that is made for it, and a data module
/// has one of its size, in which nothing but its components' icons stands.
class TStage {
 public:
  /// Shows the root, which ends before its stage; the hook must outlive both. A form has the hook
  /// already.
  TStage(vcl::TComponent& root, vcl::TDesignerHook& hook);
  TStage(const TStage&) = delete;
  TStage& operator=(const TStage&) = delete;

  vcl::TComponent& Root() const { return FRoot; }
  /// The root itself, or the form that is made for it.
  vcl::TForm& Form() const { return *FForm; }
  /// What the root's components stand in: the form or the frame.
  vcl::TWinControl& Inside() const { return *FInside; }
  /// False for a data module.
  bool HoldsControls() const;

  /// The window goes where the root says.
  void Follow();
  /// The user has moved or sized the window: the root takes it over.
  void TakeBounds();

 private:
  vcl::TComponent& FRoot;
  std::unique_ptr<vcl::TForm> FOwn;  // Null for a form.
  vcl::TForm* FForm;
  vcl::TWinControl* FInside;
};

}  // namespace ide
