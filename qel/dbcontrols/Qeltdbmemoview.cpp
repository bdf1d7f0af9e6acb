// TQELDBMemoView: its table, and the window for long texts.
#include "qel/dbcontrols/Qeltdbmemoview.h"

#include "vcl/forms/forms.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/win32.h"
#include "vcl/stdctrls/button.h"

namespace qel {

namespace {

// In pixels at 96 dots per inch.
constexpr int WindowWidth = 520;
constexpr int WindowHeight = 380;
constexpr int Margin = 8;
constexpr int ButtonWidth = 80;
constexpr int ButtonHeight = 25;

/// The window: the text, and OK and Cancel below it, which stay in the lower right corner.
class TMemoWindow : public vcl::TForm {
 public:
  TMemoWindow(const std::string& caption, bool readOnly) : TForm(nullptr) {
    SetCaption(caption);
    SetBorderIcons({vcl::biSystemMenu, vcl::biMaximize});
    SetPosition(vcl::poScreenCenter);
    SetKeyPreview(true);
    SetClientWidth(WindowWidth);
    SetClientHeight(WindowHeight);
    FMemo->SetParent(this);
    FMemo->SetScrollBars(vcl::ssVertical);
    FMemo->SetReadOnly(readOnly);
    FMemo->SetAccessibleName(caption);
    Place(*FMemo, {Margin, Margin, WindowWidth - Margin, WindowHeight - 2 * Margin - ButtonHeight},
          {vcl::akLeft, vcl::akTop, vcl::akRight, vcl::akBottom});
    AddButton(readOnly ? "Close" : "Cancel", vcl::mrCancel, 0)->SetCancel(true);
    if (!readOnly) AddButton("OK", vcl::mrOk, 1);
  }
  vcl::TMemo& Memo() { return *FMemo; }

 protected:
  /// A memo takes Escape, which is to close the window.
  void KeyDown(std::uint16_t& key, vcl::TShiftState shift) override {
    TForm::KeyDown(key, shift);
    if (key == VK_ESCAPE) SetModalResult(vcl::mrCancel);
  }

 private:
  static void Place(vcl::TControl& control, const vcl::TRect& rect, vcl::TAnchors anchors) {
    control.SetBounds(rect.Left, rect.Top, rect.Width(), rect.Height());
    control.SetAnchors(anchors);
  }
  /// `place` counts from the right.
  vcl::TButton* AddButton(const char* caption, vcl::TModalResult result, int place) {
    auto* button = new vcl::TButton(this);
    button->SetParent(this);
    button->SetCaption(caption);
    button->SetModalResult(result);
    const int right = WindowWidth - Margin - place * (ButtonWidth + Margin);
    Place(*button,
          {right - ButtonWidth, WindowHeight - Margin - ButtonHeight, right, WindowHeight - Margin},
          {vcl::akRight, vcl::akBottom});
    return button;
  }

  vcl::TMemo* FMemo = new vcl::TMemo(this);
};

}  // namespace

const vcl::TClass& TQELDBMemoView::Class() {
  using T = TQELDBMemoView;
  using namespace vcl;
  static const TClass info = Describe<T, TDBMemo>(
      "qel::TQELDBMemoView", "qel/dbcontrols/Qeltdbmemoview.h",
      {
          vcl::ReadOnly<&T::About>("About"),
          Property<&T::EditInWindow, &T::SetEditInWindow>("EditInWindow").Default(false),
      });
  return info;
}

TQELDBMemoView::TQELDBMemoView(vcl::TComponent* owner)
    : TDBMemo(owner), FAbout(std::make_unique<TQELAbout>(this)) {
  HearOnlyAsked<TQELDBMemoView>();
}

TQELDBMemoView::~TQELDBMemoView() { AnnounceEnd(); }

void TQELDBMemoView::DblClick() {
  const vcl::TWatch watch(this);
  TDBMemo::DblClick();
  if (!watch.Gone() && FEditInWindow && !Designing()) ShowWindow();
}

bool TQELDBMemoView::ShowWindow() {
  if (!Field()) return false;
  LoadMemo();
  const std::string before = Text();
  const std::string label = Field()->DisplayLabel();
  TMemoWindow window(label, !CanModify());
  window.Memo().SetText(before);
  const vcl::TWatch watch(this);
  if (window.ShowModal() != vcl::mrOk || watch.Gone()) return false;
  const std::string text = window.Memo().Text();
  if (text == before) return false;
  // Another record may have come up behind the window.
  if (Text() == before && EditField()) {
    SetText(text);
    return true;
  }
  if (watch.Gone()) return false;
  throw vcl::EDatabaseError(vcl::Concat("The text of '", label, "' could not be taken over"));
}

}  // namespace qel
