// How the controls of a form lie: whether captions are cut and controls get in each other's way,
// also at other dots per inch.
#pragma once

#include <gmock/gmock.h>

#include <set>
#include <string>
#include <type_traits>

#include "tests/support/texts.h"
#include "vcl/forms/frames.h"
#include "vcl/rtl/utf16.h"
#include "vcl/rtl/win32.h"
#include "vcl/vcl.h"

namespace formlayout {

using namespace vcl;

/// The form file that a module (null: the program) holds for the class.
inline std::string FormFile(const std::string& className, HINSTANCE module = nullptr) {
  return TResourceStream(module, UpperCase(className), MAKEINTRESOURCEA(10)).ReadRest();
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
inline TSize Extent(const TControl& control, int width) {
  const TWindowDC screen(nullptr);
  const TSelection font(screen.Get(), control.Font()->Handle());
  RECT rect{0, 0, width, 0};
  const std::wstring text = ToUtf16(control.Caption());
  ::DrawTextW(screen.Get(), text.c_str(), -1, &rect, DT_CALCRECT | (width ? DT_WORDBREAK : 0u));
  return {static_cast<int>(rect.right), static_cast<int>(rect.bottom)};
}

/// The names of the controls whose captions don't fit.
inline std::set<std::string> Cut(const TForm& form) {
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
    if (needed.cx <= room && needed.cy <= control.ClientHeight()) return;
    // Parts of others, such as the lines of a group, have no name.
    cut.insert(control.Name().empty() ? control.Caption() : control.Name());
  });
  return cut;
}

/// The pairs of controls in one parent that lie over each other.
inline std::set<std::string> Overlaps(const TForm& form) {
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

/// The names of the controls that reach out of what they stand on.
inline std::set<std::string> Outside(const TForm& form) {
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

/// Reads the file of a form, or of a frame, as a designer does, and has it scaled up and back.
template <class TRoot>
void ExpectToFit(const std::string& formFile, const std::string& name) {
  TForm form(nullptr);
  TWinControl* root = &form;
  if constexpr (std::is_same_v<TRoot, TFrame>) {
    root = new TFrame(&form);
    root->SetParent(&form);
  }
  form.SetDesigning(true);
  ReadForm(formFile, root);
  // The system makes no framed window larger than the screen.
  form.SetBorderStyle(bsNone);
  int controls = 0;
  Walk(form, [&controls](const TControl&) { ++controls; });
  EXPECT_GE(controls, 2) << name;
  const std::string text = FormText(root, name);
  const auto overlaps = Overlaps(form);
  EXPECT_THAT(Cut(form), ::testing::IsEmpty()) << name;
  for (const int pixels : {144, 192, 96}) {
    form.ScaleForPPI(pixels);
    EXPECT_THAT(Cut(form), ::testing::IsEmpty()) << name << " at " << pixels;
    EXPECT_EQ(Overlaps(form), overlaps) << name << " at " << pixels;
  }
  EXPECT_EQ(FormText(root, name), text) << name << " is what it was";
}

}  // namespace formlayout
