// TQELOnlyOne: finding other copies of the program, bringing one to the front, and ending this one.
#include "qel/services/Qeltonlyone.h"

#include <array>
#include <string_view>

#include "vcl/forms/application.h"
#include "vcl/rtl/customapplication.h"
#include "vcl/rtl/properties.h"
#include "vcl/rtl/win32.h"

namespace qel {

using namespace Qeltonlyone;

namespace {

int Guards = 0;

/// A window's class or caption, as far as it is compared.
using TWindowText = std::array<char, 256>;

std::string_view ClassOf(HWND window, TWindowText& text) {
  const int length = ::GetClassNameA(window, text.data(), static_cast<int>(text.size()));
  return {text.data(), static_cast<std::size_t>(length)};
}

/// Of another program's window this is the caption that the system keeps: no program is asked, so
/// one that hangs holds nobody up.
std::string_view CaptionOf(HWND window, TWindowText& text) {
  const int length = ::GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
  return {text.data(), static_cast<std::size_t>(length)};
}

/// Looks for the windows that have the class and the caption of this program's application window.
class TCopySearch {
 public:
  TCopySearch() { ::EnumWindows(&Compare, reinterpret_cast<LPARAM>(this)); }
  /// The application windows found, the own one included.
  int Found() const { return FFound; }
  /// The last one found that is not the own one; null when there is none.
  HWND Other() const { return FOther; }

 private:
  static BOOL CALLBACK Compare(HWND window, LPARAM self) {
    reinterpret_cast<TCopySearch*>(self)->Take(window);
    return TRUE;
  }

  void Take(HWND window) {
    TWindowText text;
    const std::string_view name = ClassOf(window, text);
    if (name.empty() || name != FClass) return;
    const std::string_view caption = CaptionOf(window, text);
    if (caption.empty() || caption != FCaption) return;
    ++FFound;
    if (window != FOwn) FOther = window;
  }

  const HWND FOwn = vcl::Application()->Handle();
  TWindowText FClassText, FCaptionText;
  const std::string_view FClass = ClassOf(FOwn, FClassText);
  const std::string_view FCaption = CaptionOf(FOwn, FCaptionText);
  int FFound = 0;
  HWND FOther = nullptr;
};

/// A program that is minimised has been active last itself, else one of its forms or boxes.
void BringToFront(HWND window) {
  if (!window) return;
  const HWND popup = ::GetLastActivePopup(window);
  ::BringWindowToTop(window);
  if (::IsIconic(popup)) {
    ::ShowWindow(popup, SW_RESTORE);
  } else {
    ::SetForegroundWindow(popup);
  }
}

}  // namespace

TQELDuplicateError::~TQELDuplicateError() = default;

TQELOnlyOne::TInstance::TInstance() {
  if (++Guards == 1) return;
  --Guards;
  throw TQELDuplicateError("You can have only one class of type\r\n" + Class().Name() +
                           "\r\n, in a project and it must be on the Mainform");
}

TQELOnlyOne::TInstance::~TInstance() { --Guards; }

const vcl::TClass& TQELOnlyOne::Class() {
  using T = TQELOnlyOne;
  using namespace vcl;
  static const TClass info = Describe<T, TQELComponent>(
      "qel::TQELOnlyOne", "qel/services/Qeltonlyone.h",
      {
          Property<&T::Instances, &T::SetInstances>("Instances"),
          Property<&T::OnExceed, &T::SetOnExceed>("OnExceed").Default(aRestoreAndExit),
          Event<&T::OnExceeded>("OnExceeded")
              .Type("TQELOnExceeded", "vcl::TObject* sender, int instances"),
      });
  return info;
}

TQELOnlyOne::TQELOnlyOne(vcl::TComponent* owner) : TQELComponent(owner) {}

TQELOnlyOne::~TQELOnlyOne() { AnnounceEnd(); }

void TQELOnlyOne::Loaded() {
  TQELComponent::Loaded();
  if (!Designing()) CheckPrevInstances();
}

void TQELOnlyOne::CheckPrevInstances() {
  const TCopySearch search;
  if (search.Found() <= FInstances) return;
  vcl::TWatch watch(this);
  OnExceeded(this, search.Found());
  if (watch.Gone()) return;
  const Qeltonlyone::TQELAction action = FOnExceed;
  if (action == aRestoreAndExit || action == aRestore) BringToFront(search.Other());
  if (action == aRestoreAndExit || action == aExit) vcl::Halt(0);
}

}  // namespace qel
