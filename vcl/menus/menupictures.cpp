// The pictures of menu items, which the system asks for as it shows a menu.
#include <utility>

#include "vcl/forms/forms.h"
#include "vcl/graphics/canvas.h"
#include "vcl/menus/menus.h"
#include "vcl/rtl/scope.h"
#include "vcl/rtl/win32.h"

namespace vcl {

void TMenu::SetImages(TImageList* images) {
  if (images == FImages) return;
  if (FImages) {
    FImages->UnRegisterChanges(&FImagesLink);
    FImages->RemoveFreeNotification(this);
  }
  FImages = images;
  if (images) {
    images->RegisterChanges(&FImagesLink);
    images->FreeNotification(this);
  }
  FItems->FillAgain();
}

void TMenu::Notification(TComponent* component, TOperation operation) {
  TComponent::Notification(component, operation);
  if (operation == opRemove && component == FImages) SetImages(nullptr);
}

bool TMenuItem::HasPicture() const {
  const TMenu* menu = GetParentMenu();
  const TImageList* images = menu ? menu->Images() : nullptr;
  return images && FImageIndex >= 0 && FImageIndex < images->Count();
}

/// The lines of all menus from here on that the system has.
void TMenuItem::FillAgain() {
  for (TMenuItem* item : FItems) item->FillAgain();
  if (FHandle) ItemsChanged();
}

// Dots per inch.

int TMenu::PixelsPerInch() const {
  const auto* form = dynamic_cast<const TCustomForm*>(Owner());
  return form ? form->PixelsPerInch() : DefaultPixelsPerInch;
}

int TMainMenu::PixelsPerInch() const {
  return FForm ? FForm->PixelsPerInch() : TMenu::PixelsPerInch();
}

int TPopupMenu::PixelsPerInch() const {
  const auto* control = dynamic_cast<const TControl*>(FPopupComponent);
  return control ? control->CurrentPPI() : TMenu::PixelsPerInch();
}

void TMenu::FitPictures() {
  const int former = std::exchange(FMeasuredAt, PixelsPerInch());
  if (FImages && former != FMeasuredAt) FItems->FillAgain();
}

// What the system asks for.

const TMenuItem* TMenu::ItemWithPicture(unsigned type, unsigned command) const {
  if (type != ODT_MENU) return nullptr;
  const TMenuItem* item = FindItem(static_cast<std::uint16_t>(command));
  return item && item->HasPicture() ? item : nullptr;
}

bool TMenu::MeasurePicture(const TMessage& message) const {
  auto& asked = *reinterpret_cast<MEASUREITEMSTRUCT*>(message.LParam);
  if (!ItemWithPicture(asked.CtlType, asked.itemID)) return false;
  const TImageList& images = *FImages->ForPPI(PixelsPerInch());
  asked.itemWidth = static_cast<UINT>(images.Width());
  asked.itemHeight = static_cast<UINT>(images.Height());
  return true;
}

bool TMenu::DrawPicture(const TMessage& message) const {
  const auto& asked = *reinterpret_cast<const DRAWITEMSTRUCT*>(message.LParam);
  const TMenuItem* item = ItemWithPicture(asked.CtlType, asked.itemID);
  if (!item) return false;
  TImageList& images = *FImages->ForPPI(PixelsPerInch());
  const TRect place(asked.rcItem);
  TCanvas canvas;
  canvas.SetHandle(asked.hDC);
  const TAtEnd letGo([&] { canvas.SetHandle(nullptr); });
  images.Draw(&canvas, place.Left + (place.Width() - images.Width()) / 2,
              place.Top + (place.Height() - images.Height()) / 2, item->ImageIndex(),
              !(asked.itemState & (ODS_DISABLED | ODS_GRAYED)));
  return true;
}

}  // namespace vcl
