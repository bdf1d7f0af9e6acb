// TDataModule: components that several forms use, in a form file of their own.
#pragma once

#include "vcl/forms/inheritedby.h"
#include "vcl/graphics/types.h"
#include "vcl/rtl/component.h"
#include "vcl/rtl/events.h"
#include "vcl/rtl/systemtypes.h"

namespace vcl {

/// A root of components that are no controls, such as data sets. It is seen in a designer only. A
/// class of data modules is written as a form class is (forms.h), and so are its descendants:
///
///     class TStore : public TDataModule {
///      public:
///       explicit TStore(TComponent* owner) : TDataModule(owner) { LoadModule(); }
///       static const TClass& Class();
///       const TClass& ClassType() const override { return Class(); }
///
///       TRecordSet* Orders = nullptr;
///     };
///
/// `TApplication::CreateForm` makes it; the forms made after it find its components by names such
/// as `Store.Orders`.
class VCL_API TDataModule : public TComponent {
 public:
  explicit TDataModule(TComponent* owner) : TComponent(owner) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  /// Fires OnDestroy and deletes the module, as the application does at the end of its Run.
  void Free();

  /// Where a designer shows the module, in pixels.
  TPoint DesignOffset() const { return {DesignLeft(), DesignTop()}; }
  /// How large it shows it; no less than 0.
  TSize DesignSize() const { return FDesignSize; }
  void SetDesignSize(TSize size);

  void GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) override;
  void SetChildOrder(TComponent* child, int order) override;

  /// All is read; the module ends. What OnCreate raises is shown, as a form's is.
  TNotifyEvent OnCreate, OnDestroy;

 protected:
  /// Reads the module from the RCDATA resource that is named after its class, in the given module
  /// or the executable, and fires OnCreate; see TCustomForm::LoadForm.
  void LoadModule(HINSTANCE module = nullptr);
  void DefineProperties(TFiler& filer) override;

 private:
  TWholeClass FWholeClass;
  TSize FDesignSize{215, 150};
  bool FCreated = false;
  bool FDestroyed = false;
};

}  // namespace vcl
