// TQELBackground: its style, and the controls that are painted on it and hear of its changes.
#include "qel/controls/Qeltbackground.h"

#include <algorithm>

#include "qel/controls/private/picturecache.h"
#include "vcl/rtl/exceptions.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TColor;
using vcl::TControl;

TQELBackground::TQELBackground(vcl::TComponent* owner)
    : TQELCustomBackground(owner),
      FTexture(std::make_unique<TQELTexture>()),
      FGradient(std::make_unique<TQELGradient>()),
      FBrushFill(std::make_unique<TQELBrushFill>()),
      FPatterns(std::make_unique<TPictureCache>()) {
  FTexture->OnChange = vcl::TNotifyEvent(this, &TQELBackground::BackChange);
  FGradient->OnChange = vcl::TNotifyEvent(this, &TQELBackground::BackChange);
  FBrushFill->OnChange = vcl::TNotifyEvent(this, &TQELBackground::BackChange);
}

TQELBackground::~TQELBackground() { AnnounceEnd(); }

void TQELBackground::Draw(HDC dc, int width, int height, bool forward) {
  if (width <= 0 || height <= 0) return;
  switch (FBackgroundStyle) {
    case bGradient:
      return FGradient->MultiDraw(dc, width, height, FGradient->ColorsInBetween(), FSolidColor,
                                  forward);
    case bTexture: return FTexture->Draw(dc, width, height, FSolidColor);
    case bSolidcolor: {
      const vcl::TOwnedBrush brush(
          vcl::CheckHandle(::CreateSolidBrush(vcl::ColorToRGB(FSolidColor)), "a brush"));
      const RECT area{0, 0, width, height};
      ::FillRect(dc, &area, brush.Get());
      return;
    }
    case bBrushFillUseCurrent:
    case bBrushFillSolidColor: return DrawBrush(dc, width, height);
  }
}

void TQELBackground::AddItem(TControl* client) {
  if (!client) throw vcl::EInvalidOperation("A client of a background cannot be nil");
  FClients.push_back(client);
  // Either side hears of the other's end, wherever the two belong.
  FreeNotification(client);
  client->FreeNotification(this);
}

void TQELBackground::RemoveItem(TControl* client) {
  const auto found = std::find(FClients.begin(), FClients.end(), client);
  if (found != FClients.end()) FClients.erase(found);
}

TControl* TQELBackground::Clients(int index) const {
  if (index < 0 || index >= ClientCount()) {
    throw vcl::EListError("A background with " + std::to_string(ClientCount()) +
                          " clients has none of index " + std::to_string(index));
  }
  return FClients[index];
}

bool TQELBackground::IsClient(const TControl* control) const {
  return std::find(FClients.begin(), FClients.end(), control) != FClients.end();
}

void TQELBackground::Notification(vcl::TComponent* component, vcl::TOperation operation) {
  TQELCustomBackground::Notification(component, operation);
  if (operation == vcl::opRemove) {
    std::erase_if(FClients, [&](const TControl* client) { return client == component; });
  }
}

void TQELBackground::BackChange(vcl::TObject* /*sender*/) {
  FPatterns->Outdate();
  const vcl::TWatch watch(this);
  for (TControl* client : std::vector(FClients)) {
    if (IsClient(client)) client->Invalidate();
    if (watch.Gone()) return;
  }
  OnChanged(this);
}

void TQELBackground::SetSolidColor(TColor color) {
  FSolidColor = color;
  BackChange(this);
}

void TQELBackground::SetBackgroundStyle(TQELBackStyle style) {
  FBackgroundStyle = style;
  BackChange(this);
}

const vcl::TClass& TQELBackground::Class() {
  using T = TQELBackground;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomBackground>(
      "qel::TQELBackground", "qel/controls/Qeltbackground.h",
      {
          Property<&T::Texture, &T::SetTexture>("Texture"),
          Property<&T::Gradient, &T::SetGradient>("Gradient"),
          Property<&T::BrushFill, &T::SetBrushFill>("BrushFill"),
          Event<&T::OnChanged>("OnChanged"),
          Property<&T::SolidColor, &T::SetSolidColor>("SolidColor").Default(clBtnFace),
          Property<&T::BackgroundStyle, &T::SetBackgroundStyle>("BackgroundStyle")
              .Default(bGradient),
      });
  return info;
}

}  // namespace qel
