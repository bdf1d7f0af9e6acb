// TListWindow: its list and its column of buttons.
#include "ide/listwindow.h"

#include <algorithm>

namespace ide {

namespace {

constexpr int ButtonWidth = 80;
constexpr int ButtonHeight = 25;
constexpr int Gap = 6;

}  // namespace

TListWindow::TListWindow(vcl::TComponent* owner) : TForm(owner), FList(new vcl::TListBox(this)) {
  SetBorderStyle(vcl::bsSizeToolWin);
  FList->SetParent(this);
}

TListWindow::~TListWindow() { AnnounceEnd(); }

vcl::TButton* TListWindow::AddButton(const char* caption, const std::function<void()>& press) {
  auto* button = new vcl::TButton(this);
  button->SetCaption(caption);
  button->SetParent(this);
  button->OnClick = vcl::TNotifyEvent([press](vcl::TObject*) { press(); });
  FButtons.push_back(button);
  Arrange();
  return button;
}

void TListWindow::CreateParams(vcl::TCreateParams& params) {
  TForm::CreateParams(params);
  // The system keeps a window in front of its owner.
  if (auto* above = dynamic_cast<vcl::TCustomForm*>(Owner())) params.WndParent = above->Handle();
}

void TListWindow::Resize() {
  TForm::Resize();
  Arrange();
}

void TListWindow::Arrange() {
  const int left = ClientWidth() - ButtonWidth - Gap;
  FList->SetBounds(Gap, Gap, std::max(left - 2 * Gap, 0), std::max(ClientHeight() - 2 * Gap, 0));
  int top = Gap;
  for (vcl::TButton* button : FButtons) {
    button->SetBounds(left, top, ButtonWidth, ButtonHeight);
    top += ButtonHeight + Gap;
  }
}

}  // namespace ide
