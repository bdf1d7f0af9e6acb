// TDataModule: made from its form file and ended.
#include "vcl/forms/datamodule.h"

#include <algorithm>
#include <utility>

#include "vcl/forms/application.h"
#include "vcl/forms/private/rootfile.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/filer.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/reader.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/writer.h"

namespace vcl {

const TClass& TDataModule::Class() {
  static const TClass info =
      Describe<TDataModule, TComponent>("vcl::TDataModule", "vcl/forms/datamodule.h",
                                        {
                                            Event<&TDataModule::OnCreate>("OnCreate"),
                                            Event<&TDataModule::OnDestroy>("OnDestroy"),
                                        });
  return info;
}

namespace {

void Fire(const TNotifyEvent& event, TDataModule* module) {
  try {
    event(module);
  } catch (...) {
    Application()->HandleCurrentException(module);
  }
}

}  // namespace

void TDataModule::LoadModule(HINSTANCE module) {
  if (FCreated) RaiseCreatedBefore(*this);
  LoadRootFile(*this, module);
  if (!FWholeClass.Is(ClassType())) return;
  FCreated = true;
  Fire(OnCreate, this);
}

void TDataModule::Free() {
  if (!std::exchange(FDestroyed, true)) Fire(OnDestroy, this);
  delete this;
}

void TDataModule::SetDesignSize(TSize size) {
  FDesignSize = {std::max(size.cx, 0), std::max(size.cy, 0)};
}

void TDataModule::GetChildren(const std::function<void(TComponent*)>& each, TComponent* root) {
  if (root == this) EachWithoutParent(*this, each);
}

void TDataModule::SetChildOrder(TComponent* child, int order) {
  OrderWithoutParent(*this, *child, order);
}

void TDataModule::DefineProperties(TFiler& filer) {
  TComponent::DefineProperties(filer);
  const auto define = [&](const char* name, int TSize::*side) {
    filer.DefineProperty(
        name,
        [this, side](TReader& reader) {
          TSize size = FDesignSize;
          size.*side = static_cast<std::int16_t>(reader.ReadInteger());
          SetDesignSize(size);
        },
        [this, side](TWriter& writer) { writer.WriteInteger(FDesignSize.*side); }, true);
  };
  define("Width", &TSize::cx);
  define("Height", &TSize::cy);
}

}  // namespace vcl
