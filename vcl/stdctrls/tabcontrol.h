// TTabControl: tabs over one common inside.
#pragma once

#include <memory>

#include "vcl/rtl/strings.h"
#include "vcl/stdctrls/customtabs.h"

namespace vcl {

/// Tabs without pages: what stands inside is the same for all, and the program changes what it
/// shows in OnChange. The first tab that comes becomes the active one.
class VCL_API TTabControl : public TCustomTabControl {
 public:
  explicit TTabControl(TComponent* owner);
  ~TTabControl() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }

  TStrings* Tabs() const { return FTabs.get(); }
  /// The tabs' captions. A tab's place is that of its picture in Images.
  void SetTabs(const TStrings* tabs) { FTabs->Assign(tabs); }
  int TabIndex() const { return FTabIndex; }
  /// The active tab, from 0; -1 for none. Raises EListError outside.
  void SetTabIndex(int index);
  /// What the tabs leave of the inside, in pixels.
  TRect DisplayRect() const;

 protected:
  std::vector<TTabLook> TabLooks() const override;
  int ActiveTab() const override { return FTabIndex; }
  void ActivateTab(int tab) override { SetTabIndex(tab); }
  void Loaded() override;

 private:
  void TabsChanged(TObject* sender);
  bool IsTabIndexStored() const;

  std::unique_ptr<TStringList> FTabs;
  int FTabIndex = -1;
  bool FHadTabs = false;
};

}  // namespace vcl
