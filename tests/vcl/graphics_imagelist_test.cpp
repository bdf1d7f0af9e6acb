// Image lists and icons.
#include "tests/support/kepthandles.h"
#include "tests/vcl/graphics_pixels.h"

namespace vcl::test {
namespace {

/// Draws image `index` of the list on yellow.
Rows Drawn(TImageList& list, int index) {
  TBitmap bitmap;
  list.GetBitmap(index, &bitmap, clYellow);
  return Letters(bitmap);
}

void AddTwo(TImageList& list) {
  TBitmap strip;
  Paint(strip, {"RFFBFB", "FRFFKF", "FFRBFB"});
  const int first = list.Count();
  EXPECT_EQ(list.AddMasked(&strip, clFuchsia), first);
  EXPECT_EQ(Letters(strip)[0], "RFFBFB") << "the bitmap stays as it was";
}
const Rows First = {"RYY", "YRY", "YYR"};
const Rows Second = {"BYB", "YKY", "BYB"};

/// A list of the two pictures.
struct TTwo : TImageList {
  TTwo() : TImageList(nullptr, 3, 3) { AddTwo(*this); }
};

std::string FileOf(TIcon& icon) {
  TStringStream stream;
  icon.SaveToStream(stream);
  return stream.DataString();
}

TEST(ImageList, MaskedPicturesLeaveTheirColorOut) {
  TTwo list;
  ASSERT_EQ(list.Count(), 2);
  EXPECT_EQ(Drawn(list, 0), First);
  EXPECT_EQ(Drawn(list, 1), Second);

  TBitmap bitmap;
  Paint(bitmap, {"GGGGG", "GGGGG", "GGGGG", "GGGGG"});
  list.Draw(bitmap.Canvas(), 1, 1, 0);
  list.Draw(bitmap.Canvas(), 0, 0, 2);
  list.Draw(bitmap.Canvas(), 0, 0, -1);
  EXPECT_EQ(Letters(bitmap), (Rows{"GGGGG", "GRGGG", "GGRGG", "GGGRG"}));
  list.SetBkColor(clLime);
  list.Draw(bitmap.Canvas(), 2, 0, 0);
  EXPECT_EQ(Letters(bitmap), (Rows{"GGRGG", "GRGRG", "GGGGR", "GGGRG"})) << "fills the holes";
}

TEST(ImageList, PicturesOfAnyKindComeInWithWhatTheyCover) {
  TImageList list(nullptr, 3, 3);
  TBitmap strip;
  Paint(strip, {"RFFBFB", "FRFFKF", "FFRBFB"});
  EXPECT_EQ(list.AddGraphic(strip), 0) << "as many as stand side by side";
  ASSERT_EQ(list.Count(), 2);
  EXPECT_EQ(Drawn(list, 0), First);
  EXPECT_EQ(Drawn(list, 1), Second);

  TBitmap wide;
  wide.Canvas()->Brush()->SetColor(clRed);
  wide.SetSize(12, 4);
  wide.SetTransparentColor(clBlue);
  TPngImage png;
  png.Assign(&wide);
  EXPECT_EQ(list.AddGraphic(png), 2) << "made smaller, in the middle";
  EXPECT_EQ(Drawn(list, 2), (Rows{"YYY", "RRR", "YYY"}));

  const TPngImage none;
  EXPECT_THROW(list.AddGraphic(none), EInvalidOperation);
  EXPECT_EQ(list.Count(), 3);
  list.Move(0, 2);
  EXPECT_EQ(Drawn(list, 2), First);
  EXPECT_EQ(Drawn(list, 0), Second);
  list.Move(2, 0);
  EXPECT_EQ(Drawn(list, 1), Second);
  EXPECT_THROW(list.Move(0, 3), EArgumentOutOfRangeException);
}

TEST(ImageList, PicturesForMoreDotsPerInchAreMadeOfTheNextLargerOnes) {
  TTwo list;
  EXPECT_EQ(list.ForPPI(96), &list) << "every pixel is what it was";
  EXPECT_EQ(Drawn(*list.ForPPI(96), 0), First);
  EXPECT_THROW(list.ForPPI(0), EArgumentOutOfRangeException);
  TImageList& twice = *list.ForPPI(192);
  EXPECT_EQ(list.ForPPI(192), &twice);
  ASSERT_EQ(twice.Count(), 2);
  EXPECT_EQ((TSize{twice.Width(), twice.Height()}), (TSize{6, 6}));
  // Softened, but in its place: the corner of the diagonal, and what lies beside it.
  const auto at = [](TImageList& from, int index, int x, int y) {
    TBitmap bitmap;
    from.GetBitmap(index, &bitmap, clYellow);
    return bitmap.Canvas()->Pixels(x, y);
  };
  EXPECT_EQ(at(twice, 0, 0, 0), clRed);
  EXPECT_GE(GetGValue(at(twice, 0, 5, 0)), 250);
  const TColor between = at(twice, 0, 1, 2);
  EXPECT_NE(between, clYellow);
  EXPECT_NE(between, clRed);
  EXPECT_EQ(GetRValue(between), 255) << "no colour of what is see-through comes in";

  TImageList large(nullptr, 6, 6);
  TBitmap green;
  green.Canvas()->Brush()->SetColor(clLime);
  green.SetSize(6, 6);
  large.Add(&green, nullptr);
  list.SetLarger(&large);
  EXPECT_EQ(at(*list.ForPPI(192), 0, 3, 3), clLime);
  EXPECT_EQ(at(*list.ForPPI(144), 0, 2, 2), clLime);
  EXPECT_EQ(list.ForPPI(192)->Count(), 2) << "of which the larger list has one";
  EXPECT_EQ(Drawn(list, 0), First);
  large.Clear();
  EXPECT_EQ(at(*list.ForPPI(192), 0, 0, 0), clRed) << "what the larger list has become";
  EXPECT_THROW(large.SetLarger(&list), EInvalidOperation);
}

TEST(ImageList, ALargerListMayGo) {
  TTwo list;
  {
    TImageList large(nullptr, 6, 6);
    list.SetLarger(&large);
  }
  EXPECT_EQ(list.Larger(), nullptr);
  EXPECT_EQ(list.ForPPI(192)->Count(), 2);
}

TEST(ImageList, AddsByMaskAndWithoutOne) {
  TImageList list(nullptr, 2, 1);
  TBitmap image;
  Paint(image, {"RB"});
  TBitmap mask;
  Paint(mask, {"K."});
  EXPECT_EQ(list.Add(&image, &mask), 0);
  EXPECT_EQ(list.Add(&image, nullptr), 1);
  EXPECT_EQ(Drawn(list, 0), Rows{"RY"});
  EXPECT_EQ(Drawn(list, 1), Rows{"RB"});
}

TEST(ImageList, RefusesWhatHoldsNoPicture) {
  TImageList list(nullptr, 3, 3);
  TBitmap narrow(2, 3);
  TBitmap empty;
  EXPECT_THROW(list.AddMasked(&narrow, clWhite), EInvalidOperation);
  EXPECT_THROW(list.Add(&empty, nullptr), EInvalidOperation);
  EXPECT_THROW(list.Add(nullptr, nullptr), EInvalidOperation);
  EXPECT_THROW(list.Delete(0), EArgumentOutOfRangeException);
  EXPECT_THROW(list.SetWidth(0), EInvalidOperation);
  EXPECT_EQ(list.Count(), 0);
}

TEST(ImageList, DeletesCopiesAndClears) {
  TImageList list(nullptr, 3, 3), copy(nullptr);
  int changes = 0;
  list.OnChange = [&](TObject*) { ++changes; };
  AddTwo(list);
  copy.Assign(&list);
  list.Delete(0);
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(list.Count(), 1);
  EXPECT_EQ(Drawn(list, 0), Second);
  EXPECT_EQ(copy.Count(), 2);
  EXPECT_EQ(Drawn(copy, 0), First);
  list.Clear();
  EXPECT_EQ(list.Count(), 0);
  copy.SetWidth(4);
  EXPECT_EQ(copy.Count(), 0) << "pictures of another size are none of the list's";
}

TEST(ImageList, DisabledPicturesAreEmbossed) {
  TImageList list(nullptr, 4, 4);
  TBitmap image, bitmap;
  Paint(image, {"KFFF", "FFFF", "FF.F", "FFFF"});
  list.AddMasked(&image, clFuchsia);
  const Rows ground = {"GGGG", "GGGG", "GGGG", "GGGG"};
  Paint(bitmap, ground);
  list.Draw(bitmap.Canvas(), 1, 1, 0, false);
  const auto pixel = [&](int at) { return static_cast<COLORREF>(bitmap.Canvas()->Pixels(at, at)); };
  EXPECT_EQ(pixel(1), ::GetSysColor(COLOR_BTNSHADOW));
  EXPECT_EQ(pixel(2), ::GetSysColor(COLOR_BTNHIGHLIGHT));
  for (int at : {1, 2}) bitmap.Canvas()->SetPixel(at, at, clLime);
  EXPECT_EQ(Letters(bitmap), ground) << "no other pixel is drawn";
}

TEST(ImageList, FormFileKeepsThePictures) {
  TTwo list;
  TStringStream stream;
  TWriter(stream).WriteRootComponent(&list);
  stream.SetPosition(0);
  TImageList read(nullptr);
  TReader(stream).ReadRootComponent(&read);
  ASSERT_EQ(read.Count(), 2);
  EXPECT_EQ(Drawn(read, 0), First);
  EXPECT_EQ(Drawn(read, 1), Second);

  for (std::size_t cut = 5; cut < 200; cut += 13) {
    const std::string& whole = stream.DataString();
    TStringStream spoilt(whole.substr(0, whole.size() - cut));
    TImageList kept(nullptr, 3, 3);
    EXPECT_ANY_THROW(TReader(spoilt).ReadRootComponent(&kept)) << cut;
    EXPECT_EQ(kept.Count(), 0);
  }
}

// ---- Icons ----

TEST(Icon, IsTheSameAfterAFile) {
  TTwo list;
  TIcon icon, read, copy;
  list.GetIcon(1, &icon);
  EXPECT_EQ(icon.Size(), (TSize{3, 3}));
  TStringStream stream(".." + FileOf(icon) + "behind");
  stream.SetPosition(2);
  read.LoadFromStream(stream);
  EXPECT_EQ(stream.ReadRest(), "behind");
  EXPECT_EQ(read.Size(), (TSize{3, 3}));
  TBitmap bitmap, assigned;
  Paint(bitmap, {"YYY", "YYY", "YYY"});
  bitmap.Canvas()->Draw(0, 0, &read);
  EXPECT_EQ(Letters(bitmap), Second);
  assigned.Assign(&read);
  EXPECT_EQ(Letters(assigned), (Rows{"B.B", ".K.", "B.B"}));
  copy.Assign(&read);
  EXPECT_EQ(copy.Width(), 3);
  EXPECT_TRUE(copy.Handle());
}

/// The file of an icon of one image, which says that the image stands at `offset`.
std::string IconFile(int side, std::size_t offset) {
  TBitmap picture(side, side);
  TImageList list(nullptr, side, side);
  list.AddMasked(&picture, clFuchsia);
  TIcon icon;
  list.GetIcon(0, &icon);
  std::string file = FileOf(icon);
  for (std::size_t i = 0; i < 4; ++i) file[18 + i] = static_cast<char>(offset >> 8 * i);
  return file;
}

TEST(Icon, ShowsTheImageNearestTheWantedSize) {
  // One file of the two images, which stand behind a heading of 6 bytes and 16 for each.
  const std::string first = IconFile(48, 38), second = IconFile(16, 38 + first.size() - 22);
  TStringStream stream(std::string("\0\0\1\0\2\0", 6) + first.substr(6, 16) + second.substr(6, 16) +
                       first.substr(22) + second.substr(22));
  TIcon icon;
  icon.LoadFromStream(stream);
  for (const auto& [wanted, shown] : {std::pair(16, 16), {20, 16}, {40, 48}, {64, 48}}) {
    icon.SetSize(wanted, wanted);
    EXPECT_EQ(icon.Width(), shown) << wanted;
    EXPECT_TRUE(icon.Handle());
    EXPECT_EQ(icon.Width(), shown) << wanted;
  }
}

TEST(Icon, RefusesDamagedFilesAndKeepsTheOldOne) {
  TTwo list;
  TIcon icon;
  list.GetIcon(0, &icon);
  const std::string good = FileOf(icon);
  std::vector<std::string> files = {"", std::string(6, '\0'), good.substr(0, good.size() - 1)};
  const std::pair<std::size_t, char> spoilt[] = {{2, 2},    {4, 0},  {4, 9},  {18, 3},
                                                 {17, 127}, {14, 0}, {22, 99}};
  for (const auto& [at, value] : spoilt) {
    files.push_back(good);
    files.back()[at] = value;
  }
  const HICON before = icon.Handle();
  for (const std::string& file : files) {
    ASSERT_NE(file, good);
    TStringStream stream(file);
    EXPECT_THROW(icon.LoadFromStream(stream), EInvalidGraphic) << &file - files.data();
    EXPECT_EQ(icon.Handle(), before);
  }
}

TEST(ImageList, ThousandsOfUsesKeepNoHandle) {
  TBitmap bitmap(8, 8);
  handles::ExpectNoneKept(1000, 5, [&](int) {
    TTwo list;
    list.Draw(bitmap.Canvas(), 0, 0, 0);
    list.Draw(bitmap.Canvas(), 0, 0, 1, false);
    TIcon icon;
    list.GetIcon(0, &icon);
    TStringStream stream(FileOf(icon));
    TIcon read;
    read.LoadFromStream(stream);
    bitmap.Canvas()->Draw(0, 0, &read);
  });
}

}  // namespace
}  // namespace vcl::test
