// The page of buttons: the settings of one button at a time, its popup menu, and drag and drop.
#include "demos/gallery/galleryform.h"
#include "demos/gallery/propertytext.h"
#include "vcl/rtl/convert.h"
#include "vcl/rtl/text.h"

namespace gallery {

using namespace qel;
using namespace vcl;

namespace {

const std::vector<TSetting> ButtonSettings = {
    {"ButtonCaptionEdit", "Caption"},
    {"ButtonBackgroundBox", "Background"},
    {"ButtonPopupMenuBox", "PopupMenu"},
    {"ButtonDragModeBox", "DragMode"},
    {"ButtonDragCursorEdit", "DragCursor"},
    {"ButtonEnabledCheck", "Enabled"},
    {"ButtonWordWrapCheck", "WordWrap"},
    {"ButtonSunkCheck", "ButtonSunk"},
    {"ButtonTabStopCheck", "TabStop"},
    {"ButtonVisibleCheck", "Visible"},
    {"ButtonShowHintCheck", "ShowHint"},
    {"ButtonNumGlyphsEdit", "Glyph.NumGlyphs"},
    {"ButtonTransparentColorBox", "Glyph.TransparentColor"},
    {"ButtonGlyphVisibleCheck", "Glyph.Visible"},
    {"ButtonTransparentCheck", "Glyph.Transparent"},
    {"ButtonThreeDimensionalCheck", "Font3D.ThreeDimensional"},
    {"ButtonMaskFontCheck", "Font3D.MaskFont"},
    {"ButtonStyle3DBox", "Font3D.Style3D"},
    {"ButtonOffsetEdit", "Font3D.Offset"},
    {"ButtonRepetitionBox", "Font3D.Repetition"},
    {"ButtonRepetitionColorBox", "Font3D.RepetitionColor"},
    {"ButtonRepetitionwidthEdit", "Font3D.Repetitionwidth"},
    {"ButtonShadowBox", "Font3D.Shadow"},
    {"ButtonHighlightBox", "Font3D.Highlight"},
    {"ButtonFontSizeEdit", "Font.Size"},
    {"ButtonFontColorBox", "Font.Color"},
    {"ButtonFontStyleEdit", "Font.Style"},
};

constexpr const char* StylePath = "Font3D.Style3D";

constexpr int LogLimit = 200;

TQELButton* ButtonOf(TObject* source) { return dynamic_cast<TQELButton*>(source); }

/// What a stone is called, by a button that shows it.
std::string StoneOf(TObject* source) {
  const TQELButton* button = ButtonOf(source);
  return button ? button->Caption() : std::string();
}

}  // namespace

void TGalleryForm::SetUpButtons() {
  FButtonSettings = &Bind(ButtonSettings);
  for (int i = 0; i < ButtonsPage->ControlCount(); ++i) {
    TControl* each = ButtonsPage->Controls(i);
    if (ButtonOf(each)) ButtonSubjectBox->Items()->AddObject(each->Name(), each);
  }
  ChooseSubject(EventsButton);
}

// Settings.

void TGalleryForm::ButtonClick(TObject* sender) {
  Log(sender, "OnClick");
  ChooseSubject(ButtonOf(sender));
}

void TGalleryForm::SubjectChange(TObject*) {
  const int index = ButtonSubjectBox->ItemIndex();
  if (index >= 0) ChooseSubject(ButtonOf(ButtonSubjectBox->Items()->Objects(index)));
}

void TGalleryForm::ChooseSubject(TQELButton* button) {
  ButtonSubjectBox->SetItemIndex(ButtonSubjectBox->Items()->IndexOfObject(button));
  FButtonSettings->SetTargets({button});
}

// The popup menu.

/// The actions of the menu that switch a property.
struct TGalleryForm::TToggle {
  TAction* TGalleryForm::*Action;
  const char* Path;
};
const TGalleryForm::TToggle TGalleryForm::Toggles[] = {
    {&TGalleryForm::EnabledAction, "Enabled"},
    {&TGalleryForm::WordWrapAction, "WordWrap"},
    {&TGalleryForm::SunkAction, "ButtonSunk"},
    {&TGalleryForm::ThreeDimensionalAction, "Font3D.ThreeDimensional"},
};

void TGalleryForm::ButtonMenuPopup(TObject*) {
  TComponent* button = ButtonMenu->PopupComponent();
  if (!button) return;
  const std::string style = PropertyText(FindProperty(*button, StylePath));
  for (int i = 0; i < StyleItem->Count(); ++i)
    StyleItem->Items(i)->SetChecked(StyleItem->Items(i)->Caption() == style);
}

void TGalleryForm::ToggleUpdate(TObject* sender) {
  TComponent* button = ButtonMenu->PopupComponent();
  for (const TToggle& toggle : Toggles) {
    TAction* action = this->*toggle.Action;
    if (button && action == sender)
      action->SetChecked(StrToBool(PropertyText(FindProperty(*button, toggle.Path))));
  }
}

void TGalleryForm::ToggleExecute(TObject* sender) {
  for (const TToggle& toggle : Toggles) {
    const TAction* action = this->*toggle.Action;
    if (action == sender) SetFromMenu(toggle.Path, BoolToStr(!action->Checked()));
  }
}

void TGalleryForm::ButtonMenuStyle(TObject* sender) {
  SetFromMenu(StylePath, dynamic_cast<TMenuItem*>(sender)->Caption());
}

void TGalleryForm::SetFromMenu(std::string_view path, const std::string& text) {
  TComponent* button = ButtonMenu->PopupComponent();
  if (!button) return;
  SetPropertyText(FindProperty(*button, path), text, *this);
  ChooseSubject(ButtonOf(button));
}

// Drag and drop.

void TGalleryForm::StoneDragOver(TObject* sender, TObject* source, int x, int y, TDragState state,
                                 bool& accept) {
  accept = ButtonOf(source) != nullptr;
  if (state == dsDragMove) return;
  Log(sender, "OnDragOver",
      Concat(state == dsDragEnter ? "enters" : "leaves", " ", StoneOf(source), " at ", IntToStr(x),
             ", ", IntToStr(y)));
}

void TGalleryForm::DropLabelDragDrop(TObject* sender, TObject* source, int, int) {
  const TQELButton* stone = ButtonOf(source);
  DropLabel->SetCaption(stone->Caption());
  DropLabel->Font()->SetColor(stone->Font()->Color());
  Log(sender, "OnDragDrop", StoneOf(source));
}

void TGalleryForm::DropListDragDrop(TObject* sender, TObject* source, int, int) {
  DropList->SetItemIndex(DropList->Items()->Add(StoneOf(source)));
  Log(sender, "OnDragDrop", StoneOf(source));
}

void TGalleryForm::TrashClick(TObject* sender) {
  ButtonClick(sender);
  DropList->Clear();
}

void TGalleryForm::TrashDragDrop(TObject* sender, TObject* source, int, int) {
  const int index = DropList->Items()->IndexOf(StoneOf(source));
  if (index >= 0) DropList->Items()->Delete(index);
  Log(sender, "OnDragDrop", StoneOf(source));
}

// The log of events.

void TGalleryForm::Log(TObject* sender, std::string_view event, const std::string& details) {
  const auto* component = dynamic_cast<TComponent*>(sender);
  const std::string_view space = details.empty() ? "" : "  ";
  TStrings* lines = EventList->Items();
  if (lines->Count() >= LogLimit) lines->Delete(0);
  EventList->SetItemIndex(lines->Add(Concat(component->Name(), ".", event, space, details)));
}

namespace {

std::string MouseText(TMouseButton button, int x, int y) {
  constexpr std::string_view names[] = {"mbLeft", "mbRight", "mbMiddle"};
  return Concat(names[button], " at ", IntToStr(x), ", ", IntToStr(y));
}

}  // namespace

void TGalleryForm::LogMouseDown(TObject* sender, TMouseButton button, TShiftState, int x, int y) {
  Log(sender, "OnMouseDown", MouseText(button, x, y));
}

void TGalleryForm::LogMouseUp(TObject* sender, TMouseButton button, TShiftState, int x, int y) {
  Log(sender, "OnMouseUp", MouseText(button, x, y));
}

void TGalleryForm::LogKeyDown(TObject* sender, std::uint16_t& key, TShiftState) {
  Log(sender, "OnKeyDown", IntToStr(key));
}

void TGalleryForm::LogKeyPress(TObject* sender, char32_t& key) {
  Log(sender, "OnKeyPress", Concat("'", Utf8(key), "'"));
}

void TGalleryForm::LogKeyUp(TObject* sender, std::uint16_t& key, TShiftState) {
  Log(sender, "OnKeyUp", IntToStr(key));
}

void TGalleryForm::LogEnter(TObject* sender) { Log(sender, "OnEnter"); }
void TGalleryForm::LogExit(TObject* sender) { Log(sender, "OnExit"); }
void TGalleryForm::LogStartDrag(TObject* sender, TDragObject*&) { Log(sender, "OnStartDrag"); }

void TGalleryForm::LogEndDrag(TObject* sender, TObject* target, int, int) {
  const auto* component = dynamic_cast<TComponent*>(target);
  Log(sender, "OnEndDrag", component ? "on " + component->Name() : "on nothing");
}

}  // namespace gallery
