// TListWindow: its list and its column of buttons.
#include "ide/listwindow.h"

namespace ide {

namespace {

constexpr int ButtonWidth = 80;
constexpr int ButtonHeight = 25;
constexpr int Gap = 6;

}  // namespace

TListWindow::TListWindow(vcl::TComponent* owner)
    : TForm(owner), FList(new vcl::TListBox(this)), FNextTop(Gap) {
  SetBorderStyle(vcl::bsSizeToolWin);
  FList->SetParent(this);
  const int left = ClientWidth() - ButtonWidth - Gap;
  FList->SetBounds(Gap, Gap, left - 2 * Gap, ClientHeight() - 2 * Gap);
  FList->SetAnchors({vcl::akLeft, vcl::akTop, vcl::akRight, vcl::akBottom});
  Constraints()->SetMinWidth(2 * ButtonWidth);
}

TListWindow::~TListWindow() { AnnounceEnd(); }

vcl::TButton* TListWindow::AddButton(const char* caption, const std::function<void()>& press) {
  auto* button = new vcl::TButton(this);
  button->SetCaption(caption);
  button->SetParent(this);
  button->OnClick = vcl::TNotifyEvent([press](vcl::TObject*) { press(); });
  button->SetBounds(ClientWidth() - ButtonWidth - Gap, FNextTop, ButtonWidth, ButtonHeight);
  button->SetAnchors({vcl::akTop, vcl::akRight});
  FNextTop += ButtonHeight + Gap;
  return button;
}

void TListWindow::CreateParams(vcl::TCreateParams& params) {
  TForm::CreateParams(params);
  // The system keeps a window in front of its owner.
  if (auto* above = dynamic_cast<vcl::TCustomForm*>(Owner())) params.WndParent = above->Handle();
}

}  // namespace ide
