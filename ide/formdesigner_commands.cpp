// TFormDesigner: the commands that change the form.
#include <algorithm>

#include "ide/formdesigner.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/streams.h"
#include "vcl/rtl/text.h"
#include "vcl/transfer/clipboard.h"

namespace ide {

using namespace vcl;

// Making and removing.

void TFormDesigner::Drop(const TClass& aClass, TWinControl& container, const TRect& place) {
  std::unique_ptr<TComponent> made;
  Try([&] {
    made.reset(aClass.Maker().Component(&Root()));
    CheckHolds(*made);
    made->SetName(UniqueName(made->ClassName()));
    auto* control = dynamic_cast<TControl*>(made.get());
    const TRect own = TDesignSurface::BoundsOf(*made);
    const bool sized = control && !place.Empty();
    TDesignSurface::SetBoundsOf(
        *made, sized ? place : Bounds(place.Left, place.Top, own.Width(), own.Height()));
    made->SetParentComponent(&container);
    ShowIconsOf({made.get()});
    FSelection.Only(made.release());
    Modified();
  });
}

void TFormDesigner::CheckHolds(const TComponent& component) const {
  const bool control = dynamic_cast<const TControl*>(&component) != nullptr;
  if (!control || FDocument.Stage().HoldsControls()) return;
  throw EComponentError(Concat(component.ClassName(), " is a control, and ", Root().Name(),
                               ", a data module, holds none"));
}

/// What has just been made is seen.
void TFormDesigner::ShowIconsOf(const std::vector<TComponent*>& made) {
  const auto isIcon = [](const TComponent* each) { return TDesignSurface::IsIcon(*each); };
  if (!ShowNonVisual() && std::ranges::any_of(made, isIcon)) SetShowNonVisual(true);
}

void TFormDesigner::Add(const TClass& aClass) {
  TWinControl& container = FSurface.Container();
  const auto middle = [](int size) { return size / 2 / GridStep * GridStep; };
  const int x = middle(container.ClientWidth());
  const int y = middle(container.ClientHeight());
  Drop(aClass, container, {x, y, x, y});
}

/// What is inherited: the component or one inside it; null for none.
const TComponent* TFormDesigner::InheritedIn(TComponent& component) const {
  if (IsInherited(component)) return &component;
  const TComponent* found = nullptr;
  component.GetChildren(
      [&](TComponent* child) {
        if (!found) found = InheritedIn(*child);
      },
      &Root());
  return found;
}

void TFormDesigner::DeleteSelected() {
  const std::vector<TComponent*> deleted = SelectedOutermost();
  if (deleted.empty()) return;
  for (TComponent* each : deleted) {
    if (const TComponent* inherited = InheritedIn(*each)) {
      return Report(Concat(inherited->Name(), " is inherited from ", OriginOf(*inherited),
                           " and can't be deleted here"));
    }
  }
  // Nobody may still show what is inside them while they are freed.
  FSelection.Only(&Root());
  Try([&] {
    for (TComponent* each : deleted) {
      bool there = false;  // It may have gone with another.
      for (int i = 0; i < Root().ComponentCount(); ++i) there |= Root().Components(i) == each;
      if (there) delete each;
    }
  });
  Modified();
}

void TFormDesigner::SelectAll() {
  const auto inside = FSurface.Inside(FSurface.Container());
  if (!inside.empty()) FSelection.Set({inside.begin(), inside.end()});
}

// The clipboard.

/// What is selected and stands inside nothing that is.
std::vector<TComponent*> TFormDesigner::SelectedOutermost() const {
  std::vector<TComponent*> outermost;
  for (TComponent* each : FSelection.Components()) {
    bool inside = each == &Root();
    for (auto* around = each->GetParentComponent(); around && !inside;
         around = around->GetParentComponent()) {
      inside = around != &Root() && FSelection.Contains(around);
    }
    if (!inside) outermost.push_back(each);
  }
  // As the form has them, whatever order they were selected in.
  std::ranges::sort(outermost, {}, &TComponent::ComponentIndex);
  return outermost;
}

std::string TFormDesigner::CopyText() const {
  TStringStream stream;
  WriteComponentsText(stream, SelectedOutermost(), &Root(), FDocument.Frames());
  return stream.DataString();
}

void TFormDesigner::Copy() {
  Try([&] {
    const std::string text = CopyText();
    if (!text.empty()) Clipboard()->SetAsText(text);
  });
}

void TFormDesigner::Cut() {
  Copy();
  DeleteSelected();
}

void TFormDesigner::Paste() {
  Try([&] { PasteText(Clipboard()->AsText()); });
}

void TFormDesigner::PasteText(const std::string& text) {
  if (text.find_first_not_of(" \t\r\n") == std::string::npos) return;
  std::vector<TComponent*> pasted;
  FDocument.Paste(text, FSurface.Container(),
                  [&](TComponent* component) { pasted.push_back(component); });
  {
    const TOnFailure nothing([&] {
      for (const TComponent* each : pasted) delete each;
    });
    for (const TComponent* each : pasted) CheckHolds(*each);
  }
  ShowIconsOf(pasted);
  PlaceBeside(pasted);
  FSelection.Set({pasted.begin(), pasted.end()});
  Modified();
}

void TFormDesigner::AddFrame(const std::string& fileName) {
  Try([&] {
    const std::string text = FDocument.FrameText(fileName, UniqueName("TFrame"));
    PasteText(text);
  });
}

/// Moves what lies exactly on another of its kind a step aside.
void TFormDesigner::PlaceBeside(const std::vector<TComponent*>& pasted) const {
  for (TComponent* each : pasted) {
    const auto* control = dynamic_cast<TControl*>(each);
    const auto covers = [&](const TComponent* other) {
      return std::ranges::count(pasted, other) == 0 &&
             TDesignSurface::BoundsOf(*other).TopLeft() ==
                 TDesignSurface::BoundsOf(*each).TopLeft();
    };
    TWinControl& around = control ? *control->Parent() : FSurface.Inside();
    while (std::ranges::any_of(FSurface.Inside(around), covers)) {
      TRect bounds = TDesignSurface::BoundsOf(*each);
      bounds.Offset(GridStep, GridStep);
      TDesignSurface::SetBoundsOf(*each, bounds);
      if (TDesignSurface::BoundsOf(*each) != bounds) break;  // It is aligned, for one.
    }
  }
}

// Order, place and size.

void TFormDesigner::BringToFront() {
  Try([&] {
    for (TComponent* each : FSelection.Components()) {
      if (auto* control = dynamic_cast<TControl*>(each)) control->BringToFront();
    }
    Modified();
  });
}

void TFormDesigner::SendToBack() {
  Try([&] {
    for (TComponent* each : FSelection.Components()) {
      if (auto* control = dynamic_cast<TControl*>(each)) control->SendToBack();
    }
    Modified();
  });
}

/// The selected controls that stand beside the first one.
std::vector<TControl*> TFormDesigner::SelectedSiblings() const {
  std::vector<TControl*> siblings;
  for (TComponent* each : FSelection.Components()) {
    auto* control = dynamic_cast<TControl*>(each);
    if (!control || !control->Parent()) continue;
    if (siblings.empty() || siblings.front()->Parent() == control->Parent()) {
      siblings.push_back(control);
    }
  }
  return siblings;
}

namespace {

template <class Change>
void ChangeBounds(const std::vector<TControl*>& controls, const Change& change) {
  std::vector<TRect> rects;
  for (const TControl* each : controls) rects.push_back(each->BoundsRect());
  change(rects);
  for (std::size_t i = 0; i < controls.size(); ++i) {
    TDesignSurface::SetBoundsOf(*controls[i], rects[i]);
  }
}

}  // namespace

void TFormDesigner::Arrange(TArrangement horizontal, TArrangement vertical) {
  const auto controls = SelectedSiblings();
  if (controls.empty()) return;
  Try([&] {
    const TWinControl& around = *controls.front()->Parent();
    ChangeBounds(controls, [&](std::vector<TRect>& rects) {
      ArrangeRects(rects, horizontal, vertical, around.ClientRect().Size());
    });
    Modified();
  });
}

void TFormDesigner::Resize(TSizing horizontal, TSizing vertical) {
  Try([&] {
    ChangeBounds(SelectedSiblings(),
                 [&](std::vector<TRect>& rects) { SizeRects(rects, horizontal, vertical); });
    Modified();
  });
}

}  // namespace ide
