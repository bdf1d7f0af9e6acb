// TQELFileLabel and TQELFileLabel3D: what they show of a file, and opening it.
#include <gmock/gmock.h>

#include <fstream>

#include "qel/qel.h"
#include "tests/support/importpatch.h"
#include "tests/support/program.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/utf16.h"
// It needs what stands above.
#include <shellapi.h>

namespace qel {
namespace {

std::string opened;
BOOL WINAPI OpenByShell(SHELLEXECUTEINFOW* order) {
  opened = vcl::ToUtf8(order->lpFile);
  const bool there = !opened.ends_with("none.txt");
  if (!there) ::SetLastError(ERROR_FILE_NOT_FOUND);
  return there;
}

class FileLabel : public vcl::TStandardForm {
 protected:
  FileLabel() {
    std::ofstream(Temp.Path / "some file.txt") << std::string(3000, 'x');
    Label->SetBounds(10, 10, 300, 20);
    Label->SetFilename(File);
    ShowForm();
  }
  /// How many pixels from the left to the right are not the ground, in the form's picture.
  int Drawn(int left, int right) {
    const auto shot = Form.GetFormImage();
    int count = 0;
    for (int x = left; x < right; ++x) {
      for (int y = 10; y < 30; ++y)
        count += shot->Canvas()->Pixels(x, y) != shot->Canvas()->Pixels(5, 5) ? 1 : 0;
    }
    return count;
  }
  testing_support::TFolder Temp;
  const std::string File = (Temp.Path / "some file.txt").string();
  TQELFileLabel* Label = Make<TQELFileLabel>(10, 10);
};

TEST_F(FileLabel, ShowsWhatItIsAskedFor) {
  const auto shown = [this](TQELFileLabelDisplay display) {
    Label->SetDisplay(display);
    return Label->Caption();
  };
  EXPECT_EQ(shown(fdPath), File);
  EXPECT_EQ(shown(fdName), "some file.txt");
  EXPECT_EQ(shown(fdFolder) + "some file.txt", File);
  EXPECT_THAT(shown(fdSize), testing::StartsWith("3"));
  EXPECT_THAT(shown(fdDate), testing::HasSubstr(vcl::DateToStr(vcl::Date())));
  EXPECT_NE(shown(fdType), "");
  Label->SetFilename(Temp.Path.string());
  EXPECT_NE(shown(fdType), "");
  EXPECT_EQ(shown(fdSize), "");
  Label->SetFilename("Q:\\none.txt");
  for (const auto display : {fdSize, fdDate, fdType}) EXPECT_EQ(shown(display), "");
  EXPECT_EQ(shown(fdName), "none.txt");
  Label->SetFilename("");
  EXPECT_EQ(shown(fdPath), "");
}

TEST_F(FileLabel, ShortensAPathInTheMiddle) {
  Label->SetFilename("C:\\" + std::string(200, 'i') + "\\W");
  // The name at the end is seen.
  const int whole = Drawn(10, 310);
  Label->SetFilename("C:\\" + std::string(200, 'i') + "\\.");
  EXPECT_GT(whole, Drawn(10, 310));
  EXPECT_EQ(Drawn(312, 490), 0) << "not outside";
  Label->SetAutoSize(true);
  EXPECT_GT(Label->Width(), 350) << "with all of it";
}

TEST_F(FileLabel, HasTheFilesPicture) {
  Label->SetDisplay(fdSize);
  const int before = Drawn(10, 310);
  Label->SetShowIcon(true);
  EXPECT_GT(Drawn(10, 310), before + 50);
  Label->SetFilename("");
  EXPECT_EQ(Drawn(10, 310), 0) << "nothing of no file";
}

TEST_F(FileLabel, AClickOpensIt) {
  const TImportPatch patch("qel.dll", "ShellExecuteExW", &OpenByShell);
  opened.clear();
  Click(*Label, 20, 8);
  EXPECT_EQ(opened, "") << "not asked to";
  Label->SetClickOpens(true);
  Click(*Label, 100, 8);
  EXPECT_EQ(opened, File);
  vcl::TAccessibleInfo info;
  Label->DescribeAccessible(info);
  EXPECT_EQ(info.DefaultAction, "Open");
  opened.clear();
  Label->DoAccessibleAction();
  EXPECT_EQ(opened, File);
  Label->SetFilename("Q:\\none.txt");
  EXPECT_FALSE(Label->Open());
  EXPECT_THAT(Label->LastError(), testing::HasSubstr("none.txt"));
  Label->OnClick = [this](vcl::TObject*) { delete Label; };
  opened.clear();
  Click(*Label, 200, 8);
  EXPECT_EQ(opened, "") << "freed in its event";
}

TEST_F(FileLabel, TheThreeDimensionalOneIsOneToo) {
  EXPECT_FALSE(Label->Font3D()->ThreeDimensional());
  const std::unique_ptr<TQELFileLabel> label = std::make_unique<TQELFileLabel3D>(nullptr);
  EXPECT_TRUE(label->Font3D()->ThreeDimensional());
  EXPECT_FALSE(label->AutoSize());
}

}  // namespace
}  // namespace qel
