// TQELLookupMenu: its lines as a menu, the key that brings it up, and inserting.
#include "qel/controls/Qeltlookupmenu.h"

#include "vcl/actions/action.h"
#include "vcl/actions/actionlist.h"
#include "vcl/forms/forms.h"
#include "vcl/forms/screen.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TCustomEdit;
using vcl::TMenuItem;
using vcl::TWatch;

namespace {

constexpr auto DefaultShortCut = static_cast<vcl::TShortCut>(vcl::scCtrl | VK_SPACE);

}  // namespace

/// An action for the menu's key among those of its form, which no form file holds.
class TQELKeyList : public vcl::TActionList {
 public:
  TQELKeyList(vcl::TComponent* form, TQELLookupMenu& menu) : TActionList(form), FMenu(menu) {
    auto* action = new vcl::TAction(this);
    action->SetActionList(this);
    action->SetShortCut(menu.ShortCut());
    action->OnUpdate = [this, action](vcl::TObject*) {
      action->SetEnabled(FMenu.Target() != nullptr);
    };
    action->OnExecute = [this](vcl::TObject*) { FMenu.Popup(); };
  }
  ~TQELKeyList() override { FMenu.FKeys = nullptr; }
  bool HasParent() const override { return true; }

 private:
  TQELLookupMenu& FMenu;
};

const vcl::TClass& TQELLookupMenu::Class() {
  using T = TQELLookupMenu;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELLookupMenu", "qel/controls/Qeltlookupmenu.h",
      {
          Property<&T::Edit, &T::SetEdit>("Edit"),
          Property<&T::Images, &T::SetImages>("Images"),
          Property<&T::Items, &T::SetItems>("Items"),
          Property<&T::Mode, &T::SetMode>("Mode").Default(lmInsert),
          Property<&T::ShortCut, &T::SetShortCut>("ShortCut").Default(DefaultShortCut),
          Event<&T::OnSelect>("OnSelect"),
      });
  return info;
}

TQELLookupMenu::TQELLookupMenu(vcl::TComponent* owner)
    : TQELComponent(owner),
      FItems(std::make_unique<vcl::TStringList>()),
      FShortCut(DefaultShortCut) {
  ListenToKey();
}

TQELLookupMenu::~TQELLookupMenu() {
  AnnounceEnd();
  delete FKeys;
}

void TQELLookupMenu::SetEdit(TCustomEdit* edit) {
  FEdit = edit;
  if (edit) edit->FreeNotification(this);
}

void TQELLookupMenu::SetImages(vcl::TImageList* images) {
  FImages = images;
  if (images) images->FreeNotification(this);
}

void TQELLookupMenu::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELComponent::Notification(component, operation);
  if (operation != vcl::opRemove) return;
  if (component == FEdit) FEdit = nullptr;
  if (component == FImages) FImages = nullptr;
}

// The key.

void TQELLookupMenu::SetShortCut(vcl::TShortCut shortCut) {
  FShortCut = shortCut;
  ListenToKey();
}

void TQELLookupMenu::Loaded() {
  TQELComponent::Loaded();
  ListenToKey();
}

void TQELLookupMenu::ListenToKey() {
  delete FKeys;
  auto* form = dynamic_cast<vcl::TCustomForm*>(Owner());
  const bool listens = form && FShortCut != vcl::scNone && !Designing() && !Loading();
  if (listens) FKeys = new TQELKeyList(form, *this);
}

/// Null, too, for an edit that takes no text now.
TCustomEdit* TQELLookupMenu::Target() const {
  TCustomEdit* edit = FEdit;
  if (edit && !edit->Focused() && vcl::Screen()->ActiveControl() != edit) edit = nullptr;
  if (!FEdit) edit = dynamic_cast<TCustomEdit*>(vcl::Screen()->ActiveControl());
  return edit && edit->CanModify() ? edit : nullptr;
}

// The menu.

/// The item of the caption in the submenu, made where it is missing.
static TMenuItem* SubmenuOf(TMenuItem* parent, const std::string& caption) {
  for (int i = 0; i < parent->Count(); ++i) {
    TMenuItem* item = parent->Items(i);
    if (item->Caption() == caption && !item->OnClick) return item;
  }
  auto* made = new TMenuItem(parent);
  made->SetCaption(caption);
  parent->Add(made);
  return made;
}

void TQELLookupMenu::AddLine(vcl::TPopupMenu& menu, int line, std::string& chosen) const {
  const std::string whole = FItems->Strings(line);
  const auto equals = whole.find('=');
  std::string path = whole.substr(0, equals);
  TMenuItem* parent = menu.Items();
  for (auto at = path.find('\\'); at != std::string::npos; at = path.find('\\')) {
    if (at > 0) parent = SubmenuOf(parent, path.substr(0, at));
    path.erase(0, at + 1);
  }
  if (path.empty()) return;
  auto* item = new TMenuItem(&menu);
  item->SetCaption(path);
  item->SetImageIndex(FImages && line < FImages->Count() ? line : -1);
  const std::string text = equals == std::string::npos ? path : whole.substr(equals + 1);
  item->OnClick = [&chosen, text](vcl::TObject*) { chosen = text; };
  parent->Add(item);
}

void TQELLookupMenu::Fill(vcl::TPopupMenu& menu, std::string& chosen) const {
  menu.SetImages(FImages);
  for (int i = 0; i < FItems->Count(); ++i) AddLine(menu, i, chosen);
}

bool TQELLookupMenu::Popup(int x, int y) {
  if (FItems->Count() == 0 || !(FEdit || Target())) return false;
  std::string chosen;
  const TWatch watch(this);
  {
    vcl::TPopupMenu menu(nullptr);
    Fill(menu, chosen);
    menu.Popup(x, y);
  }
  if (!watch.Gone() && !chosen.empty()) Insert(chosen);
  return true;
}

bool TQELLookupMenu::Popup() {
  TCustomEdit* edit = Target();
  if (!edit) return false;
  POINT caret{};
  ::GetCaretPos(&caret);
  const vcl::TPoint place = edit->ClientToScreen({caret.x, caret.y});
  return Popup(place.X, place.Y + edit->ClientHeight() / 2);
}

void TQELLookupMenu::Insert(const std::string& text) {
  std::string inserted = text;
  const TWatch watch(this);
  OnSelect(this, inserted);
  if (watch.Gone() || inserted.empty()) return;
  TCustomEdit* edit = FEdit ? FEdit : Target();
  if (!edit || !edit->CanModify()) return;
  if (FMode == lmReplace) edit->SelectAll();
  edit->SetSelText(inserted);
}

}  // namespace qel
