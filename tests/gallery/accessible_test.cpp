// What a screen reader finds on the gallery's pages.
#include <gmock/gmock.h>

#include "demos/gallery/galleryform.h"
#include "tests/support/screenreader.h"
#include "tests/vcl/testinput.h"

namespace gallery_test {
namespace {

using namespace screenreader;

/// The names of the controls that take the keyboard and have no name for a screen reader.
void ListNameless(const TSpoken& spoken, std::string& nameless, int& focusable) {
  if (spoken.Has(STATE_SYSTEM_INVISIBLE)) return;
  if (spoken.Has(STATE_SYSTEM_FOCUSABLE)) {
    ++focusable;
    HWND window = nullptr;
    ::WindowFromAccessibleObject(spoken.Object.get(), &window);
    const vcl::TWinControl* control = vcl::TWinControl::FromHandle(window);
    if (spoken.Name().empty()) nameless += (control ? control->Name() : "?") + " ";
  }
  if (spoken.Child != CHILDID_SELF) return;
  for (const TSpoken& child : ChildrenOf(spoken)) ListNameless(child, nameless, focusable);
}

TEST(GalleryForScreenReaders, EveryControlThatTakesTheKeyboardHasAName) {
  gallery::TGalleryForm form(nullptr);
  form.Show();
  testinput::PumpUntil([&] { return form.Active(); });
  for (int page = 0; page < form.Pages->PageCount(); ++page) {
    form.Pages->SetActivePageIndex(page);
    testinput::Pump();
    std::string nameless;
    int focusable = 0;
    ListNameless(OfWindow(form.Handle()), nameless, focusable);
    EXPECT_EQ(nameless, "") << form.Pages->Pages(page)->Name();
    EXPECT_GT(focusable, 3) << form.Pages->Pages(page)->Name();
  }
}

}  // namespace
}  // namespace gallery_test
