// The forms of all sample programs at other dots per inch: nothing is cut, nothing gets in the way
// of its neighbours.
#include <gmock/gmock.h>

#include "tests/support/formlayout.h"
#include "tests/support/registered.h"
#include "vcl/db/registration.h"
#include "vcl/dbctrls/registration.h"
#include "vcl/forms/standardclasses.h"

namespace gallery_test {
namespace {

using namespace vcl;
using namespace formlayout;

constexpr const char* FormClasses[] = {
    "TGalleryForm", "TNotesForm",  "TFindForm",    "TOptionsForm", "TAboutForm",
    "TPreviewForm", "TMailerForm", "TComposeForm", "TAccountForm", "TRecordsForm"};
/// The gallery's pages that are frames.
constexpr const char* PageClasses[] = {"TStandardPage", "TListsPage",     "TChoicesPage",
                                       "TMovingPage",   "TPickListsPage", "TEditingPage",
                                       "TFieldsPage",   "TDialogsPage",   "TSystemPage",
                                       "TDesktopPage",  "TFilesPage"};

TEST(SampleForms, FitAtOtherDotsPerInch) {
  RegisterStandardClasses();
  RegisterAll();
  RegisterDataClasses();
  RegisterDataControls();
  for (const char* name : FormClasses) ExpectToFit<TForm>(FormFile(name), name);
  for (const char* name : PageClasses) ExpectToFit<TFrame>(FormFile(name), name);
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
