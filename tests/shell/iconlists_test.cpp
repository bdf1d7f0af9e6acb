// TQELIconCombo and TQELIconListbox with files of the system and of the test's own.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "qel/qel.h"
#include "tests/support/handles.h"
#include "tests/support/program.h"
#include "tests/vcl/standardform.h"
#include "vcl/rtl/files.h"
#include "vcl/rtl/formfile.h"
#include "vcl/rtl/streams.h"

namespace qel {
namespace {

const std::string Library = "C:\\windows\\system32\\shell32.dll";

/// A file with one icon, as large as its image, of one colour.
std::string IconFile(const testing_support::TFolder& folder, vcl::TColor color) {
  constexpr int size = 16;
  const std::string head("\0\0\1\0\1\0\x10\x10\0\0\1\0\x20\0\x68\4\0\0\x16\0\0\0", 22);
  std::string bytes =
      head + std::string("\x28\0\0\0\x10\0\0\0\x20\0\0\0\1\0\x20\0", 16) + std::string(24, '\0');
  for (int i = 0; i < size * size; ++i) {
    for (const int shift : {16, 8, 0}) bytes += static_cast<char>(color >> shift);
    bytes += '\xFF';
  }
  const auto path = folder.Path / "one.ico";
  std::ofstream(path, std::ios::binary) << bytes + std::string(size * 4, '\0');
  return path.string();
}

template <class T>
class IconLists : public vcl::TStandardForm {
 protected:
  IconLists() : List(Make<T>(10, 10)) {
    List->SetBounds(10, 10, 200, 200);
    ShowForm();
  }
  vcl::TRecreatable<T>* List;
  testing_support::TFolder Folder;
};
using TLists = testing::Types<TQELIconCombo, TQELIconListbox>;
TYPED_TEST_SUITE(IconLists, TLists);

TYPED_TEST(IconLists, ShowTheIconsOfAFile) {
  auto& list = *this->List;
  EXPECT_EQ(list.IconIndex(), 0);
  EXPECT_TRUE(list.Icon().Empty());
  list.SetFilename(Library);
  EXPECT_GT(list.Items()->Count(), 20);
  EXPECT_EQ(list.ItemIndex(), 0);
  EXPECT_EQ(list.Icon().Width(), 32);
  EXPECT_EQ(list.ItemHeight(), 36);
  list.SetIconIndex(3);
  EXPECT_EQ(list.ItemIndex(), 3);
  list.SetIconSize(16);
  EXPECT_EQ(list.Icon().Width(), 16);
  EXPECT_EQ(list.ItemIndex(), 3) << "the same icon in another size";
  list.SetIconSize(0);
  list.SetIconSize(257);
  EXPECT_EQ(list.IconSize(), 16);
  list.SetFilename(IconFile(this->Folder, vcl::clFuchsia));
  EXPECT_EQ(list.Items()->Count(), 1);
  EXPECT_EQ(list.IconIndex(), 0) << "another file's first";
  const vcl::TPoint middle = list.ClientToScreen({12, 12});
  const vcl::TWindowDC screen(nullptr);
  EXPECT_TRUE(testinput::PumpUntil(
      [&] { return ::GetPixel(screen.Get(), middle.X, middle.Y) == vcl::clFuchsia; }));
}

TYPED_TEST(IconLists, AreEmptyWithoutAWordForWhatIsNoFileOfIcons) {
  auto& list = *this->List;
  const std::string whole = vcl::ReadWholeFile(Library).value();
  const auto broken = [&](const char* name, const std::string& bytes) {
    std::ofstream(this->Folder.Path / name, std::ios::binary) << bytes;
    return (this->Folder.Path / name).string();
  };
  std::string jumbled = whole.substr(0, 200'000);
  for (std::size_t i = 1024; i < jumbled.size(); i += 7) jumbled[i] = '\x7F';
  for (const std::string& file :
       {broken("cut.exe", whole.substr(0, 700)), broken("jumbled.exe", jumbled),
        broken("text.ico", "no icon"), broken("head.ico", std::string("\0\0\1\0\xFF\xFF", 6)),
        std::string("Z:\\none.dll"), this->Folder.Path.string(), std::string(5000, 'x')}) {
    list.SetFilename(Library);
    list.SetFilename(file);
    EXPECT_EQ(list.Items()->Count(), 0) << file;
    EXPECT_EQ(list.Filename(), file);
    EXPECT_TRUE(list.Icon().Empty());
  }
  list.SetIconIndex(2);
  list.SetIconIndex(-2);
  EXPECT_EQ(list.IconIndex(), 2) << "kept for the icon to come";
}

TYPED_TEST(IconLists, ChooseByKeyAndKeepTheirChoiceInFormFiles) {
  auto& list = *this->List;
  list.SetFilename(Library);
  list.SetFocus();
  this->Key(VK_DOWN);
  this->Key(VK_DOWN);
  EXPECT_EQ(list.IconIndex(), 2);
  list.RecreateWnd();
  EXPECT_EQ(list.ItemIndex(), 2);
  TypeParam written(nullptr), read(nullptr);
  written.SetFilename(Library);
  written.SetIconIndex(5);
  vcl::TStringStream file;
  vcl::WriteComponentText(file, &written);
  EXPECT_THAT(file.DataString(), testing::HasSubstr("ItemIndex = 5"));
  vcl::TStringStream source(file.DataString());
  vcl::ReadComponentFile(source, &read);
  EXPECT_EQ(read.ItemIndex(), 5);
}

using IconListbox = IconLists<TQELIconListbox>;

TEST_F(IconListbox, KeepsNoIcons) {
  List->SetFilename(Library);
  List->Icon();
  const int before = handles::GdiObjects();
  for (int i = 0; i < 5; ++i) {
    List->SetIconSize(32 - i);
    List->Icon();
  }
  EXPECT_LE(handles::GdiObjects(), before + 1);
}

TEST_F(IconListbox, HasIconsForTheDotsPerInch) {
  List->SetFilename(Library);
  RECT place{0, 0, 800, 700};
  Form.Perform(WM_DPICHANGED, MAKEWPARAM(192, 192), reinterpret_cast<LPARAM>(&place));
  EXPECT_EQ(List->Icon().Width(), 64);
  EXPECT_EQ(List->ItemHeight(), 72);
  List->SetIconSize(256);
  EXPECT_EQ(List->ItemHeight(), 255) << "no more than a line can have";
}

}  // namespace
}  // namespace qel
