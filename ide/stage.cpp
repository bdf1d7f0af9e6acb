// TStage: windows of frames and data modules.
#include "ide/stage.h"

#include <algorithm>

#include "vcl/forms/datamodule.h"
#include "vcl/forms/frames.h"

namespace ide {

using namespace vcl;

namespace {

class TStageForm : public TForm {
 public:
  TStageForm() : TForm(nullptr) {}
  /// A form that is designed is seen from when it is loaded on; this one is not.
  void Begin() { UpdateControlState(); }
};

}  // namespace

TStage::TStage(TComponent& root, TDesignerHook& hook)
    : FRoot(root), FForm(dynamic_cast<TForm*>(&root)), FInside(FForm) {
  if (FForm) return;
  constexpr int left = 40;
  constexpr int top = 30;
  auto own = std::make_unique<TStageForm>();
  FForm = own.get();
  FForm->SetDesigner(&hook);
  FForm->SetBounds(left, top, 0, 0);
  auto* frame = dynamic_cast<TFrame*>(&root);
  FInside = frame ? static_cast<TWinControl*>(frame) : FForm;
  if (frame) frame->SetParent(FForm);
  own->Begin();
  FOwn = std::move(own);
  Follow();
}

bool TStage::HoldsControls() const { return !dynamic_cast<const TDataModule*>(&FRoot); }

void TStage::Follow() {
  if (!FOwn) return;
  FOwn->SetCaption(FRoot.Name());
  if (const auto* module = dynamic_cast<const TDataModule*>(&FRoot)) {
    const TPoint at = module->DesignOffset();
    const TSize size = module->DesignSize();
    FOwn->SetBounds(at.X, at.Y, size.cx, size.cy);
  } else if (FInside->Align() == alNone) {
    const TRect frame = FInside->BoundsRect();
    FOwn->SetClientWidth(frame.Right);
    FOwn->SetClientHeight(frame.Bottom);
  }
}

void TStage::TakeBounds() {
  if (!FOwn) return;
  if (auto* module = dynamic_cast<TDataModule*>(&FRoot)) {
    module->SetDesignPosition(FOwn->Left(), FOwn->Top());
    module->SetDesignSize({FOwn->Width(), FOwn->Height()});
  } else {
    FInside->SetBounds(FInside->Left(), FInside->Top(),
                       std::max(FOwn->ClientWidth() - FInside->Left(), 0),
                       std::max(FOwn->ClientHeight() - FInside->Top(), 0));
  }
}

}  // namespace ide
