// The forms of all sample programs at other dots per inch: nothing is cut, nothing gets in the way
// of its neighbours.
#include <gmock/gmock.h>

#include <array>
#include <set>

#include "tests/support/registered.h"
#include "tests/support/texts.h"
#include "vcl/db/registration.h"
#include "vcl/dbctrls/registration.h"
#include "vcl/forms/standardclasses.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"

namespace gallery_test {
namespace {

using namespace vcl;

constexpr const char* FormClasses[] = {
    "TGalleryForm", "TNotesForm",  "TFindForm",    "TOptionsForm", "TAboutForm",
    "TPreviewForm", "TMailerForm", "TComposeForm", "TAccountForm", "TRecordsForm"};

std::string FormFile(const std::string& name) {
  return TResourceStream(nullptr, UpperCase(name), MAKEINTRESOURCEA(10)).ReadRest();
}

/// Visits the controls of the form, at all depths.
template <class Visit>
void Walk(const TWinControl& around, const Visit& visit) {
  for (int i = 0; i < around.ControlCount(); ++i) {
    visit(*around.Controls(i));
    if (const auto* inside = dynamic_cast<const TWinControl*>(around.Controls(i))) {
      Walk(*inside, visit);
    }
  }
}

/// What the caption takes, broken into lines of the width where one is given.
TSize Extent(const TControl& control, int width) {
  const TWindowDC screen(nullptr);
  const TSelection font(screen.Get(), control.Font()->Handle());
  RECT rect{0, 0, width, 0};
  const std::wstring text = ToUtf16(control.Caption());
  ::DrawTextW(screen.Get(), text.c_str(), -1, &rect, DT_CALCRECT | (width ? DT_WORDBREAK : 0u));
  return {static_cast<int>(rect.right), static_cast<int>(rect.bottom)};
}

/// The names of the controls whose captions don't fit.
std::set<std::string> Cut(const TForm& form) {
  std::set<std::string> cut;
  Walk(form, [&cut](const TControl& control) {
    const auto* label = dynamic_cast<const TCustomLabel*>(&control);
    const bool check = dynamic_cast<const TCustomCheckBox*>(&control) ||
                       dynamic_cast<const TRadioButton*>(&control);
    const bool button = dynamic_cast<const TButton*>(&control);
    if (!label && !check && !button) return;
    constexpr int box = 17;  // With the gap behind it.
    const int room = control.ClientWidth() - (check ? control.ScaledPixels(box) : 0);
    const bool wraps = label && label->WordWrap();
    const TSize needed = Extent(control, wraps ? room : 0);
    if (needed.cx > room || needed.cy > control.ClientHeight()) cut.insert(control.Name());
  });
  return cut;
}

/// The pairs of controls in one parent that lie over each other.
std::set<std::string> Overlaps(const TForm& form) {
  std::set<std::string> pairs;
  Walk(form, [&pairs](const TControl& control) {
    const TWinControl& around = *control.Parent();
    for (int i = 0; i < around.ControlCount() && around.Controls(i) != &control; ++i) {
      const RECT first = control.BoundsRect();
      const RECT second = around.Controls(i)->BoundsRect();
      RECT common;
      if (!::IntersectRect(&common, &first, &second)) continue;
      pairs.insert(control.Name() + "/" + around.Controls(i)->Name());
    }
  });
  return pairs;
}

TEST(SampleForms, FitAtOtherDotsPerInch) {
  RegisterStandardClasses();
  RegisterAll();
  RegisterDataClasses();
  RegisterDataControls();
  for (const char* name : FormClasses) {
    TForm form(nullptr);
    form.SetDesigning(true);
    ReadForm(FormFile(name), &form);
    // The system makes no framed window larger than the screen.
    form.SetBorderStyle(bsNone);
    int controls = 0;
    Walk(form, [&controls](const TControl&) { ++controls; });
    EXPECT_GE(controls, 2) << name;
    const std::string text = FormText(&form, name);
    const auto cut = Cut(form);
    const auto overlaps = Overlaps(form);
    EXPECT_THAT(cut, ::testing::IsEmpty()) << name;
    for (const int pixels : {144, 192, 96}) {
      form.ScaleForPPI(pixels);
      EXPECT_EQ(Cut(form), cut) << name << " at " << pixels;
      EXPECT_EQ(Overlaps(form), overlaps) << name << " at " << pixels;
    }
    EXPECT_EQ(FormText(&form, name), text) << name << " is what it was";
  }
}

/// The names of the controls that reach out of what they stand on.
std::set<std::string> Outside(const TForm& form) {
  std::set<std::string> outside;
  Walk(form, [&outside](const TControl& control) {
    const TRect bounds = control.BoundsRect();
    const TRect around = control.Parent()->ClientRect();
    if (bounds.Left < around.Left || bounds.Top < around.Top || bounds.Right > around.Right ||
        bounds.Bottom > around.Bottom || bounds.Empty()) {
      outside.insert(control.Name());
    }
  });
  return outside;
}

TEST(SampleForms, FillTheSizesThatTheUserGivesThem) {
  RegisterStandardClasses();
  RegisterAll();
  RegisterDataClasses();
  RegisterDataControls();
  int resized = 0;
  for (const char* name : FormClasses) {
    TForm form(nullptr);
    form.SetDesigning(true);
    ReadForm(FormFile(name), &form);
    if (form.BorderStyle() != bsSizeable) continue;
    ++resized;
    form.SetBorderStyle(bsNone);
    constexpr TSize frame{16, 48};  // With a menu's row.
    const TSize least{form.Constraints()->MinWidth() - frame.cx,
                      form.Constraints()->MinHeight() - frame.cy};
    form.Constraints()->SetMinWidth(0);
    form.Constraints()->SetMinHeight(0);
    ASSERT_GT(least.cx, 100) << name;
    ASSERT_GT(least.cy, 100) << name;
    // What lies over another as it is designed, such as the pages of a page control, still does.
    const auto overlaps = Overlaps(form);
    EXPECT_THAT(Outside(form), ::testing::IsEmpty()) << name;
    for (const TSize size : {TSize{1200, 900}, least}) {
      form.SetBounds(0, 0, size.cx, size.cy);
      EXPECT_THAT(Outside(form), ::testing::IsEmpty()) << name << " of " << size.cx;
      EXPECT_EQ(Overlaps(form), overlaps) << name << " of " << size.cx;
    }
  }
  EXPECT_EQ(resized, 6) << "the main forms, the one for a mail and the preview";
}

}  // namespace
}  // namespace gallery_test
