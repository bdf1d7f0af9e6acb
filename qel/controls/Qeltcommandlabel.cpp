// TQELCommandLabel: what its caption opens, and its looks.
#include "qel/controls/Qeltcommandlabel.h"

#include <string_view>

#include "vcl/controls/accelerators.h"
#include "vcl/forms/application.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/text.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

#include <shellapi.h>

namespace qel {
namespace {

/// By TQELCommand.
constexpr std::string_view Prefixes[] = {"", "mailto:", "http://", "ftp://", "file:", "event"};

/// ROLE_SYSTEM_LINK.
constexpr auto LinkRole = static_cast<vcl::TAccessibleRole>(30);

}  // namespace

const vcl::TClass& TQELCommandLabel::Class() {
  using T = TQELCommandLabel;
  using namespace vcl;
  static const TClass info = Describe<T, TQELCustomLabel>(
      "qel::TQELCommandLabel", "qel/controls/Qeltcommandlabel.h",
      {
          Inherit(LabelProperties),
          Inherit("Caption"),
          Inherit("ShowAccelChar"),
          Inherit("Cursor").Default(crHandPoint),
          Property<&T::Command, &T::SetCommand>("Command").Default(runURL),
          Property<&T::HotColor, &T::SetHotColor>("HotColor").Default(clHighlight),
          Property<&T::VisitedColor, &T::SetVisitedColor>("VisitedColor").Default(clPurple),
          Property<&T::Underline, &T::SetUnderline>("Underline").Default(uHot),
          Event<&T::RunEvent>("RunEvent"),
          Event<&T::OnCommand>("OnCommand")
              .Type("TQELCommandEvent", "vcl::TObject* sender, std::string& target, bool& allow"),
          Event<&T::OnError>("OnError").Type("TQELCommandErrorEvent",
                                             "vcl::TObject* sender, int code"),
      });
  return info;
}

TQELCommandLabel::TQELCommandLabel(vcl::TComponent* owner) : TQELCustomLabel(owner) {
  SetCursor(vcl::crHandPoint);
  HearOnlyAsked<TQELCommandLabel>();
}

void TQELCommandLabel::SetCommand(TQELCommand command) { FCommand = command; }

void TQELCommandLabel::SetHotColor(vcl::TColor color) {
  FHotColor = color;
  Invalidate();
}

void TQELCommandLabel::SetVisitedColor(vcl::TColor color) {
  FVisitedColor = color;
  Invalidate();
}

void TQELCommandLabel::SetUnderline(TQELCommandUnderline underline) {
  FUnderline = underline;
  Invalidate();
}

void TQELCommandLabel::SetHot(bool hot) {
  if (hot == FHot) return;
  FHot = hot;
  Invalidate();
}

const vcl::TFont* TQELCommandLabel::ShownFont() const {
  FShownFont.AssignPixels(Font());
  const bool hot = FHot && Enabled();
  if (FVisited && FVisitedColor != vcl::clNone) FShownFont.SetColor(FVisitedColor);
  if (hot && FHotColor != vcl::clNone) FShownFont.SetColor(FHotColor);
  if (FUnderline == uAlways || (FUnderline == uHot && hot))
    FShownFont.SetStyle(Font()->Style() + vcl::TFontStyles{vcl::fsUnderline});
  return &FShownFont;
}

// Running.

std::string TQELCommandLabel::Target() const {
  const std::string text = ShowAccelChar() ? vcl::WithoutAccel(Caption()) : Caption();
  const std::string_view prefix = Prefixes[FCommand];
  std::string_view bare = text;
  if (vcl::SameText(bare.substr(0, prefix.size()), prefix)) bare.remove_prefix(prefix.size());
  return FCommand == runEVENT ? std::string(bare) : vcl::Concat(prefix, bare);
}

void TQELCommandLabel::Run() {
  if (!Enabled() || Designing()) return;
  FCommand == runEVENT ? RunEvent(this) : Open();
}

void TQELCommandLabel::Open() {
  const vcl::TWatch watch(this);
  std::string target = Target();
  bool allow = true;
  OnCommand(this, target, allow);
  if (watch.Gone() || !allow || target.empty()) return;
  // The shell may show boxes, and with them handle this program's messages.
  const HINSTANCE answer =
      ::ShellExecuteW(vcl::Application()->Handle(), L"open", vcl::ToUtf16(target).c_str(), nullptr,
                      nullptr, SW_SHOWNORMAL);
  if (watch.Gone()) return;
  const auto code = static_cast<int>(reinterpret_cast<INT_PTR>(answer));
  // Answers above 32 are successes.
  if (code <= 32) return OnError(this, code);
  FVisited = true;
  Invalidate();
}

void TQELCommandLabel::MouseDown(vcl::TMouseButton button, vcl::TShiftState shift, int x, int y) {
  const vcl::TWatch watch(this);
  TQELCustomLabel::MouseDown(button, shift, x, y);
  if (!watch.Gone() && button == vcl::mbLeft && !shift.Has(vcl::ssDouble)) Run();
}

void TQELCommandLabel::Dispatch(vcl::TMessage& message) {
  const bool accelerator = message.Msg == vcl::CM_DIALOGCHAR && Enabled() && Seen() &&
                           ShowAccelChar() && vcl::IsAccel(message.WParam, Caption());
  if (accelerator) {
    message.Result = 1;
    return Run();
  }
  if (message.Msg == vcl::CM_TEXTCHANGED) FVisited = false;
  const vcl::TWatch watch(this);
  TQELCustomLabel::Dispatch(message);
  if (watch.Gone()) return;
  if (message.Msg == vcl::CM_MOUSEENTER) SetHot(true);
  if (message.Msg == vcl::CM_MOUSELEAVE) SetHot(false);
}

void TQELCommandLabel::DescribeAccessible(vcl::TAccessibleInfo& info) const {
  TQELCustomLabel::DescribeAccessible(info);
  info.Role = LinkRole;
  info.DefaultAction = "Open";
}

void TQELCommandLabel::DoAccessibleAction() { Run(); }

}  // namespace qel
