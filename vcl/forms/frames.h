// TCustomFrame and TFrame: a part of a form with a form file of its own.
#pragma once

#include "vcl/controls/wincontrol.h"

namespace vcl {

/// A control that its own form file fills, and that stands on forms and other frames. A frame class
/// is written as a form class is, and loads its file in its constructor:
///
///     class TAddressFrame : public TFrame {
///      public:
///       explicit TAddressFrame(TComponent* owner) : TFrame(owner) { LoadFrame(); }
///       static const TClass& Class();
///       const TClass& ClassType() const override { return Class(); }
///
///       TEdit* Street = nullptr;
///     };
///
/// Its components belong to the frame: names have to differ inside it only. A form's file shows the
/// frame as `inline Address1: TAddressFrame`, holds what differs from the frame's own file as
/// `inherited` components inside, and reaches them as `Address1.Street`. Events that the form's
/// file gives them are bound to the form's handlers.
class VCL_API TCustomFrame : public TWinControl {
 public:
  explicit TCustomFrame(TComponent* owner);
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;

 protected:
  /// Reads the frame from the RCDATA resource that is named after its class, in the given module or
  /// the executable, as TCustomForm::LoadForm does. A descendant with a file of its own calls it in
  /// its constructor, too, and reads on top of what is there.
  void LoadFrame(HINSTANCE module = nullptr);
};

/// A frame as applications derive theirs from.
class VCL_API TFrame : public TCustomFrame {
 public:
  explicit TFrame(TComponent* owner) : TCustomFrame(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
};

}  // namespace vcl
