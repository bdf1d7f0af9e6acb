// TStatusBar: a line at a form's foot that tells how things stand, in one text or in panels.
#pragma once

#include <memory>
#include <string>

#include "vcl/controls/wincontrol.h"
#include "vcl/rtl/collection.h"

namespace vcl {

enum TStatusPanelBevel { pbNone, pbLowered, pbRaised };
template <>
inline constexpr TEnumText EnumText<TStatusPanelBevel>{"TStatusPanelBevel",
                                                       "pbNone pbLowered pbRaised"};

/// A panel of a status bar.
class VCL_API TStatusPanel : public TCollectionItem {
 public:
  explicit TStatusPanel(TCollection* collection) : TCollectionItem(collection) {}
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void Assign(const TPersistent* source) override;
  std::string DisplayName() const override;

  TAlignment Alignment() const { return FAlignment; }
  /// Where the text stands in the panel.
  void SetAlignment(TAlignment alignment);
  TStatusPanelBevel Bevel() const { return FBevel; }
  /// Whether the panel looks sunk, raised or flat.
  void SetBevel(TStatusPanelBevel bevel);
  const std::string& Text() const { return FText; }
  /// What the panel shows.
  void SetText(const std::string& text);
  int Width() const { return FWidth; }
  /// In pixels; the last panel takes what is left. A negative width is taken as 0.
  void SetWidth(int width);

 private:
  template <class T>
  void Change(T& field, const T& value);

  TAlignment FAlignment = taLeftJustify;
  TStatusPanelBevel FBevel = pbLowered;
  std::string FText;
  int FWidth = 50;
};

class VCL_API TStatusPanels : public TCollection {
 public:
  TStatusPanels() : TCollection(TStatusPanel::Class()) {}
  /// The panel at the index from 0. Raises EListError outside.
  TStatusPanel* Items(int index) const {
    return static_cast<TStatusPanel*>(TCollection::Items(index));
  }
  TStatusPanel* Add() { return static_cast<TStatusPanel*>(TCollection::Add()); }
};

/// The system's status bar.
class VCL_API TStatusBar : public TWinControl {
 public:
  explicit TStatusBar(TComponent* owner);
  ~TStatusBar() override;
  static const TClass& Class();
  const TClass& ClassType() const override { return Class(); }
  void DescribeAccessible(TAccessibleInfo& info) const override;
  std::vector<TAccessiblePart> AccessibleParts() override;

  TStatusPanels* Panels() const { return FPanels.get(); }
  /// The panels, from left to right.
  void SetPanels(const TCollection* panels) { FPanels->Assign(panels); }
  bool SimplePanel() const { return FSimplePanel; }
  /// True: SimpleText takes the whole bar, and the panels are hidden.
  void SetSimplePanel(bool simple);
  const std::string& SimpleText() const { return FSimpleText; }
  /// What the bar shows with SimplePanel.
  void SetSimpleText(const std::string& text);
  bool SizeGrip() const { return FSizeGrip; }
  /// A corner to drag the form's size with.
  void SetSizeGrip(bool sizeGrip);

 protected:
  void ChangeScale(int m, int d) override;
  void CreateParams(TCreateParams& params) override;
  void CreateWnd() override;

 private:
  void PanelsChanged(TCollectionItem* item);
  void UpdatePanels();
  void UpdatePanel(const TStatusPanel& panel);
  void UpdateSimple();

  std::unique_ptr<TStatusPanels> FPanels;
  std::string FSimpleText;
  bool FSimplePanel = false;
  bool FSizeGrip = true;
};

}  // namespace vcl
