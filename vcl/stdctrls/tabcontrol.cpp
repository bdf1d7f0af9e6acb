// TTabControl: its tabs, and which one is active.
#include "vcl/stdctrls/tabcontrol.h"

#include <algorithm>
#include <utility>

#include "vcl/controls/accelerators.h"
#include "vcl/controls/propertygroups.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"

namespace vcl {

const TClass& TTabControl::Class() {
  using T = TTabControl;
  static const TClass info = Describe<T, TCustomTabControl>(
      "vcl::TTabControl", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align"),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Inherit("HotTrack"),
          Inherit("Images"),
          Inherit("MultiLine"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("RaggedRight"),
          Inherit("ShowHint"),
          Inherit("Style"),
          Inherit("TabHeight"),
          Inherit("TabOrder"),
          Inherit("TabPosition"),
          // The active one is one of them.
          Property<&T::Tabs, &T::SetTabs>("Tabs"),
          Property<&T::TabIndex, &T::SetTabIndex>("TabIndex").StoredIf<&T::IsTabIndexStored>(),
          Inherit("TabStop").Default(true),
          Inherit("TabWidth"),
          Inherit("Visible"),
          Inherit("OnChange"),
          Inherit("OnChanging"),
          Inherit(DragEvents),
          Inherit(FocusEvents),
          Inherit(MouseEvents),
          Inherit(WheelEvents),
          Inherit("OnResize"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TTabControl::TTabControl(TComponent* owner)
    : TCustomTabControl(owner), FTabs(std::make_unique<TStringList>()) {
  SetControlStyle(ControlStyle() + TControlStyle{csAcceptsControls});
  FTabs->OnChange = TNotifyEvent(this, &TTabControl::TabsChanged);
}

TTabControl::~TTabControl() {
  AnnounceEnd();
  FTabs->OnChange = nullptr;
}

void TTabControl::SetTabIndex(int index) {
  if (!Loading() && (index < -1 || index >= FTabs->Count())) {
    throw EListError(Concat("Tab index ", std::to_string(index), " is out of bounds: there are ",
                            std::to_string(FTabs->Count()), " tabs"));
  }
  if (index == FTabIndex) return;
  FTabIndex = index;
  ShowActiveTab();
  if (index >= 0) AccessibleChanged(acSelection, {index});
}

void TTabControl::TabsChanged(TObject* /*sender*/) {
  const bool first = !std::exchange(FHadTabs, FTabs->Count() > 0);
  if (first && FTabIndex < 0 && FHadTabs) FTabIndex = 0;
  if (!Loading()) FTabIndex = std::min(FTabIndex, FTabs->Count() - 1);
  UpdateTabs();
}

void TTabControl::Loaded() {
  TCustomTabControl::Loaded();
  FTabIndex = std::clamp(FTabIndex, -1, FTabs->Count() - 1);
  ShowActiveTab();
}

bool TTabControl::IsTabIndexStored() const { return FTabIndex != (FTabs->Count() > 0 ? 0 : -1); }

std::vector<TTabLook> TTabControl::TabLooks() const {
  std::vector<TTabLook> looks;
  for (int i = 0; i < FTabs->Count(); ++i) {
    const std::string caption = FTabs->Strings(i);
    looks.push_back({caption, i, WithoutAccel(caption)});
  }
  return looks;
}

TRect TTabControl::DisplayRect() const {
  TRect rect = ClientRect();
  AdjustClientRect(rect);
  return rect;
}

}  // namespace vcl
