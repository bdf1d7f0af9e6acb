// TProgressWindow: made in code, as it has nothing to design.
#include "qel/shell/private/progresswindow.h"

#include <cmath>

#include "vcl/controls/scaling.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/win32.h"

namespace qel {
namespace {

constexpr ULONGLONG Delay = 500;  // Milliseconds.
constexpr int Steps = 1000;
constexpr int Width = 420, Height = 112, Gap = 14;  // At 96 dots per inch.

}  // namespace

TProgressWindow::TProgressWindow(const std::string& title)
    : FForm(nullptr),
      FWhat(new vcl::TLabel(&FForm)),
      FBar(new vcl::TProgressBar(&FForm)),
      FCancel(new vcl::TButton(&FForm)),
      FBegin(::GetTickCount64()) {
  const auto scaled = [this](int size) { return FForm.ScaledPixels(size); };
  FForm.SetCaption(title);
  FForm.SetBorderStyle(vcl::bsDialog);
  FForm.SetPosition(vcl::poMainFormCenter);
  FForm.SetClientWidth(scaled(Width));
  FForm.SetClientHeight(scaled(Height));
  FForm.OnCloseQuery = [this](vcl::TObject*, bool& canClose) {
    FCancelled = true;
    canClose = false;  // It goes with the work.
  };
  FWhat->SetParent(&FForm);
  FWhat->SetAutoSize(false);
  FWhat->SetBounds(scaled(Gap), scaled(Gap), scaled(Width - 2 * Gap), scaled(16));
  FBar->SetParent(&FForm);
  FBar->SetMax(Steps);
  FBar->SetBounds(scaled(Gap), scaled(38), scaled(Width - 2 * Gap), scaled(18));
  FCancel->SetParent(&FForm);
  FCancel->SetCaption("Cancel");
  FCancel->SetCancel(true);
  FCancel->SetBounds(scaled(Width - Gap - 80), scaled(Height - Gap - 26), scaled(80), scaled(26));
  FCancel->OnClick = [this](vcl::TObject*) { FCancelled = true; };
}

TProgressWindow::~TProgressWindow() = default;

bool TProgressWindow::Show(const std::string& what, double done) {
  FWhat->SetCaption(what);
  FBar->SetPosition(static_cast<int>(std::lround(done * Steps)));
  if (!FForm.Visible() && ::GetTickCount64() - FBegin >= Delay) FForm.Show();
  vcl::Application()->ProcessMessages();
  return !FCancelled;
}

}  // namespace qel
