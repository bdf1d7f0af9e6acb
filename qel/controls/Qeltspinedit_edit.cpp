// TQELCustomStepEdit: its button, size and window.
#include <algorithm>

#include "qel/controls/Qeltspinedit.h"
#include "vcl/controls/windowmessages.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using vcl::TRect;
using vcl::TWatch;

const vcl::TClass& TQELCustomStepEdit::Class() {
  using T = TQELCustomStepEdit;
  using namespace vcl;
  static const TClass info = Describe<T, TCustomEdit>(
      "qel::TQELCustomStepEdit", "qel/controls/Qeltspinedit.h",
      {
          Property<&T::ButtonColor, &T::SetButtonColor>("ButtonColor")
              .Default(clBtnFace)
              .Unpublished(),
          Property<&T::ArrowColor, &T::SetArrowColor>("ArrowColor").Default(clBlack).Unpublished(),
          Property<&T::CutandPaste, &T::SetCutandPaste>("CutandPaste").Default(true).Unpublished(),
          Property<&T::Readonly, &T::SetReadonly>("Readonly").Default(false).Unpublished(),
      });
  return info;
}

TQELCustomStepEdit::TQELCustomStepEdit(vcl::TComponent* owner)
    : TCustomEdit(owner),
      FButtonWindow(new vcl::TWinControl(this)),
      FButton(new TQELCustomSpinButton(this)) {
  FButtonWindow->SetParent(this);
  FButton->SetParent(FButtonWindow);
  FButton->OnTopClick = vcl::TNotifyEvent(this, &TQELCustomStepEdit::UpClick);
  FButton->OnBottomClick = vcl::TNotifyEvent(this, &TQELCustomStepEdit::DownClick);
  AdjustSize();
}

TQELCustomStepEdit::~TQELCustomStepEdit() { AnnounceEnd(); }

void TQELCustomStepEdit::Loaded() {
  TCustomEdit::Loaded();
  AdjustSize();
}

// What is written, and the size and window.

// The button is made by every edit itself: nothing of it is written.
void TQELCustomStepEdit::GetChildren(const std::function<void(vcl::TComponent*)>& each,
                                     vcl::TComponent* root) {
  const auto others = [&](vcl::TComponent* child) {
    if (child != FButtonWindow) each(child);
  };
  TCustomEdit::GetChildren(others, root);
}

namespace {

int LineHeight(HDC dc) {
  TEXTMETRICW metrics{};
  ::GetTextMetricsW(dc, &metrics);
  return static_cast<int>(metrics.tmHeight);
}

}  // namespace

int TQELCustomStepEdit::GetMinHeight() const {
  const vcl::TWindowDC screen(nullptr);
  const int system = LineHeight(screen.Get());  // A context of the screen begins with its font.
  const vcl::TSelection selection(screen.Get(), Font()->Handle());
  const int own = LineHeight(screen.Get());
  return own + std::min(system, own) / 4 + 4 * ::GetSystemMetrics(SM_CYBORDER);
}

void TQELCustomStepEdit::AdjustSize() {
  const int least = GetMinHeight();
  // Comes back here by way of Resize.
  if (Height() < least) return SetHeight(least);
  const int edges = Ctl3D() ? 4 : 0;
  FButtonWindow->SetBounds(Width() - Height(), 0, Height() - edges, Height() - edges);
  FButton->SetBounds(0, 0, FButtonWindow->Width(), FButtonWindow->Height());
  SetEditRect();
}

void TQELCustomStepEdit::SetEditRect() {
  if (!HandleAllocated()) return;
  RECT rect = TRect{0, 0, ClientWidth() - FButtonWindow->Width() - 2, ClientHeight() + 1};
  const auto address = reinterpret_cast<LPARAM>(&rect);
  vcl::Send(*this, EM_SETRECTNP, 0, address);
  // Read back for those who watch the window's messages; nothing here needs the answer.
  vcl::Send(*this, EM_GETRECT, 0, address);
}

// Only an edit of many lines can keep its text in a part of its window.
void TQELCustomStepEdit::CreateParams(vcl::TCreateParams& params) {
  TCustomEdit::CreateParams(params);
  params.Style |= ES_MULTILINE | WS_CLIPCHILDREN;
}

void TQELCustomStepEdit::CreateWnd() {
  TCustomEdit::CreateWnd();
  SetEditRect();
}

void TQELCustomStepEdit::Resize() {
  TWatch watch(this);
  TCustomEdit::Resize();
  if (!watch.Gone()) AdjustSize();
}

// The text that is typed is told of, whatever number it is read as.
void TQELCustomStepEdit::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TCustomEdit::DescribeAccessible(info);
  info.Role = vcl::arSpinButton;
}

}  // namespace qel
