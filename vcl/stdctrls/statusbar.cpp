// TStatusBar and its panels: told to the system's status bar.
#include "vcl/stdctrls/statusbar.h"

#include <algorithm>
#include <vector>

#include "vcl/controls/propertygroups.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/utf16.h"
#include "vcl/stdctrls/private/commoncontrols.h"

namespace vcl {

namespace {

void SendText(const TWinControl& bar, WPARAM part, const std::string& text) {
  SendIfAllocated(bar, SB_SETTEXTW, part, reinterpret_cast<LPARAM>(ToUtf16(text).c_str()));
}

}  // namespace

const TClass& TStatusPanel::Class() {
  using T = TStatusPanel;
  static const TClass info = Describe<T, TCollectionItem>(
      "vcl::TStatusPanel", "vcl/stdctrls/comctrls.h",
      {
          Property<&T::Alignment, &T::SetAlignment>("Alignment").Default(taLeftJustify),
          Property<&T::Bevel, &T::SetBevel>("Bevel").Default(pbLowered),
          Property<&T::Text, &T::SetText>("Text").Default(""),
          Property<&T::Width, &T::SetWidth>("Width"),
      });
  return info;
}

template <class T>
void TStatusPanel::Change(T& field, const T& value) {
  if (value == field) return;
  field = value;
  Changed(false);
}

void TStatusPanel::SetAlignment(TAlignment alignment) { Change(FAlignment, alignment); }
void TStatusPanel::SetBevel(TStatusPanelBevel bevel) { Change(FBevel, bevel); }
void TStatusPanel::SetText(const std::string& text) { Change(FText, text); }

void TStatusPanel::SetWidth(int width) {
  width = std::max(width, 0);
  if (width == FWidth) return;
  FWidth = width;
  Changed(true);
}

void TStatusPanel::Assign(const TPersistent* source) {
  const auto* panel = dynamic_cast<const TStatusPanel*>(source);
  if (!panel) return TCollectionItem::Assign(source);
  SetAlignment(panel->Alignment());
  SetBevel(panel->Bevel());
  SetText(panel->Text());
  SetWidth(panel->Width());
}

std::string TStatusPanel::DisplayName() const {
  return FText.empty() ? TCollectionItem::DisplayName() : FText;
}

const TClass& TStatusBar::Class() {
  using T = TStatusBar;
  static const TClass info = Describe<T, TWinControl>(
      "vcl::TStatusBar", "vcl/stdctrls/comctrls.h",
      {
          Inherit("Align").Default(alBottom),
          Inherit("DragCursor"),
          Inherit("DragMode"),
          Inherit("Enabled"),
          Inherit("Font"),
          Property<&T::Panels, &T::SetPanels>("Panels"),
          Inherit("ParentFont"),
          Inherit("ParentShowHint"),
          Inherit("PopupMenu"),
          Inherit("ShowHint"),
          Property<&T::SimplePanel, &T::SetSimplePanel>("SimplePanel").Default(false),
          Property<&T::SimpleText, &T::SetSimpleText>("SimpleText").Default(""),
          Property<&T::SizeGrip, &T::SetSizeGrip>("SizeGrip").Default(true),
          Inherit("Visible"),
          Inherit("OnClick"),
          Inherit("OnDblClick"),
          Inherit(DragEvents),
          Inherit(MouseEvents),
          Inherit("OnResize"),
          Inherit("OnStartDrag"),
      });
  return info;
}

TStatusBar::TStatusBar(TComponent* owner)
    : TWinControl(owner), FPanels(std::make_unique<TStatusPanels>()) {
  SetControlStyle({csCaptureMouse, csClickEvents, csDoubleClicks, csOpaque});
  SetBounds(0, 0, 0, 20);
  SetAlign(alBottom);
  FPanels->OnUpdate = [this](TCollectionItem* item) { PanelsChanged(item); };
}

TStatusBar::~TStatusBar() {
  AnnounceEnd();
  FPanels->OnUpdate = nullptr;
}

void TStatusBar::SetSimplePanel(bool simple) {
  FSimplePanel = simple;
  SendIfAllocated(*this, SB_SIMPLE, simple);
}

void TStatusBar::SetSimpleText(const std::string& text) {
  FSimpleText = text;
  UpdateSimple();
  if (FSimplePanel) AccessibleChanged(acName, {0});
}

void TStatusBar::SetSizeGrip(bool sizeGrip) {
  if (sizeGrip == FSizeGrip) return;
  FSizeGrip = sizeGrip;
  RecreateWnd();
}

void TStatusBar::ChangeScale(int m, int d) {
  TWinControl::ChangeScale(m, d);
  const TUpdating once(*FPanels);
  for (int i = 0; i < FPanels->Count(); ++i) {
    TStatusPanel* panel = FPanels->Items(i);
    panel->SetWidth(ScaleMeasure(panel->Width(), m, d));
  }
}

void TStatusBar::CreateParams(TCreateParams& params) {
  UseCommonControls(ICC_BAR_CLASSES);
  TWinControl::CreateParams(params);
  params.SubClassOf = STATUSCLASSNAMEA;
  // Place and size are ours to give.
  params.Style |= CCS_NORESIZE | CCS_NOPARENTALIGN | (FSizeGrip ? SBARS_SIZEGRIP : 0);
}

void TStatusBar::CreateWnd() {
  TWinControl::CreateWnd();
  UpdatePanels();
  UpdateSimple();
  Send(*this, SB_SIMPLE, FSimplePanel);
}

void TStatusBar::PanelsChanged(TCollectionItem* item) {
  if (!HandleAllocated()) return;
  item ? UpdatePanel(static_cast<const TStatusPanel&>(*item)) : UpdatePanels();
  if (item && !FSimplePanel) AccessibleChanged(acName, {item->Index()});
}

void TStatusBar::UpdatePanels() {
  std::vector<int> edges;
  int right = 0;
  for (int i = 0; i < FPanels->Count(); ++i) edges.push_back(right += FPanels->Items(i)->Width());
  if (edges.empty()) edges.push_back(0);
  edges.back() = -1;  // To the bar's end.
  Send(*this, SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
  if (FPanels->Count() == 0) SendText(*this, 0, {});
  for (int i = 0; i < FPanels->Count(); ++i) UpdatePanel(*FPanels->Items(i));
}

void TStatusBar::UpdatePanel(const TStatusPanel& panel) {
  static constexpr WPARAM bevels[] = {SBT_NOBORDERS, 0, SBT_POPOUT};
  static constexpr const char* alignments[] = {"", "\t\t", "\t"};
  SendText(*this, static_cast<WPARAM>(panel.Index()) | bevels[panel.Bevel()],
           alignments[panel.Alignment()] + panel.Text());
}

void TStatusBar::UpdateSimple() { SendText(*this, SB_SIMPLEID, FSimpleText); }

void TStatusBar::DescribeAccessible(TAccessibleInfo& info) const {
  TWinControl::DescribeAccessible(info);
  info.Role = arStatusBar;
}

std::vector<TAccessiblePart> TStatusBar::AccessibleParts() {
  std::vector<TAccessiblePart> parts;
  const auto add = [&](const std::string& text, const TRect& bounds) {
    TAccessibleInfo info;
    info.Role = arStaticText;
    info.State.Include(asReadOnly);
    info.Name = text;
    parts.push_back({info, bounds, {}});
  };
  if (FSimplePanel) add(FSimpleText, ClientRect());
  for (int i = 0; !FSimplePanel && i < FPanels->Count(); ++i) {
    RECT bounds{};
    SendIfAllocated(*this, SB_GETRECT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&bounds));
    add(FPanels->Items(i)->Text(), bounds);
  }
  return parts;
}

}  // namespace vcl
